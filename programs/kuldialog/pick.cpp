// SPDX-License-Identifier: MIT
//
// Files and directories to pick: a line with the path, above it the entries of its directory.
#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>

#include <dirent.h>
#include <fcntl.h>
#include <kulgui.h>
#include <unistd.h>

#include "boxes.hpp"
#include "entry.hpp"
#include "output.hpp"
#include "terminal.hpp"
#include "window.hpp"

namespace kuldialog {

namespace {

constexpr int kLine = kBody;
constexpr int kEntries = kBody + 1;
constexpr int kMostEntries = 20000;

bool directoriesOnly = false;

int wanted(const dirent* entry)
{
    const bool maybeDirectory =
        entry->d_type == DT_DIR || entry->d_type == DT_LNK || entry->d_type == DT_UNKNOWN;
    return std::strcmp(entry->d_name, ".") != 0 && (maybeDirectory || !directoriesOnly);
}

int inOrder(const dirent** one, const dirent** other)
{
    return std::strcmp((*one)->d_name, (*other)->d_name);
}

class Picker {
public:
    Picker(Window& window, const char* szPath) : window_(window) { path_.add(szPath); }
    ~Picker() { dropEntries(); }
    Picker(const Picker&) = delete;
    Picker& operator=(const Picker&) = delete;

    void create();
    int key(int nKey);

private:
    std::size_t directorySize() const;
    void fill();
    void dropEntries();
    bool isDirectory(const char* szName) const;
    int selected() const;
    void take();
    void complete();

    Window& window_;
    Buffer path_;
    Buffer listed_; // the directory whose entries are shown
    dirent** entries_ = nullptr;
    int count_ = 0;
};

// Of the part up to the last slash.
std::size_t Picker::directorySize() const
{
    const char* slash = std::strrchr(path_.text(), '/');
    return slash ? static_cast<std::size_t>(slash + 1 - path_.text()) : 0;
}

void Picker::dropEntries()
{
    for (int i = 0; i < count_; ++i)
        std::free(entries_[i]);
    std::free(entries_);
    entries_ = nullptr;
    count_ = 0;
}

bool Picker::isDirectory(const char* szName) const
{
    Buffer path;
    path.add(listed_.text(), listed_.size());
    path.add(szName);
    const int nFd = open(path.text(), O_PATH | O_DIRECTORY | O_CLOEXEC);
    close(nFd);
    return nFd >= 0;
}

void Picker::fill()
{
    listed_.clear();
    listed_.add(path_.text(), directorySize());
    dropEntries();
    const int nFound = scandir(listed_.size() ? listed_.text() : ".", &entries_, wanted, inOrder);
    if (nFound < 0 && errno == ENOMEM)
        made(-1);
    count_ = std::max(nFound, 0);
    kuldynmenu_config(window_.nChain, kEntries, colors[kFocus], colors[kWindowColor], KUL_KEEP, 1,
                      window_.nBodyY, window_.nWidth - 4, window_.nBodyHeight - 3, nullptr, nullptr,
                      nullptr, nullptr);
    int nKept = 0;
    for (int i = 0; i < count_; ++i) {
        Buffer name;
        name.add(entries_[i]->d_name);
        const bool directory = entries_[i]->d_type == DT_DIR ||
                               (entries_[i]->d_type != DT_REG && isDirectory(entries_[i]->d_name));
        if ((directoriesOnly && !directory) || nKept == kMostEntries) {
            std::free(entries_[i]);
            continue;
        }
        if (directory)
            name.add('/');
        entries_[nKept++] = entries_[i];
        made(kuldynmenu_addElement(window_.nChain, kEntries, name.text(), nullptr, nullptr, 1));
    }
    count_ = nKept;
}

void Picker::create()
{
    kuldynmenu_create(window_.nChain, kEntries);
    fill();
    createLine(window_, kLine, 2, window_.nBodyY + window_.nBodyHeight - 1, window_.innerWidth(),
               NOMASK, 4096, path_.text());
}

int Picker::selected() const
{
    const UI* ui = GetUIComponentByRef(window_.nChain, kEntries);
    const int nSelect = ui && ui->Pointer ? static_cast<KULDYNMENU*>(ui->Pointer)->nSelect : -1;
    return nSelect < count_ ? nSelect : -1;
}

// The selected entry becomes the path; the entries of a directory come in view.
void Picker::take()
{
    const int nEntry = selected();
    if (nEntry < 0)
        return;
    const char* szName = entries_[nEntry]->d_name;
    Buffer path;
    path.add(listed_.text(), listed_.size());
    path.add(szName);
    const bool directory = isDirectory(szName);
    if (directory)
        path.add('/');
    path_.clear();
    path_.add(path.text(), path.size());
    kultextbox_setText(window_.nChain, kLine, path_.text());
    if (directory)
        fill();
}

// Goes on with the name in the line as far as all entries agree that begin so.
void Picker::complete()
{
    const char* szName = path_.text() + directorySize();
    const std::size_t size = std::strlen(szName);
    const char* first = nullptr;
    std::size_t common = 0;
    for (int i = 0; i < count_; ++i) {
        const char* entry = entries_[i]->d_name;
        if (!begins(entry, szName))
            continue;
        std::size_t same = 0;
        while (first && first[same] && first[same] == entry[same])
            ++same;
        common = first ? std::min(common, same) : std::strlen(entry);
        first = first ? first : entry;
    }
    if (first && common > size) {
        path_.add(first + size, common - size);
        kultextbox_setText(window_.nChain, kLine, path_.text());
    }
}

int Picker::key(int nKey)
{
    if (window_.has(kLine)) {
        path_.clear();
        path_.add(entered(window_, kLine));
        if (nKey == KS_SPACE) {
            complete();
            return 0;
        }
        if (nKey == KS_UP || nKey == KS_DOWN) {
            if (listed_.size() != directorySize() ||
                std::memcmp(listed_.text(), path_.text(), listed_.size()) != 0)
                fill();
            kulgui_setFocus(window_.nChain, kEntries);
            return 0;
        }
        return nKey == KS_BACKTAB ? nKey : lineKey(window_, nKey);
    }
    if (!window_.has(kEntries))
        return nKey;
    if (nKey == KS_SPACE) {
        take();
        return 0;
    }
    if (nKey == KS_ENTER) {
        Window::chooseDefault();
        return 0;
    }
    return nKey;
}

} // namespace

Answer runPick(const Call& call)
{
    const Settings& settings = call.settings;
    Window window(call, "");
    directoriesOnly = call.variant == kDirectories;
    // The height asked for is that of the entries.
    if (window.nHeight > 0)
        window.nHeight = std::min(window.nHeight + 6, screenHeight());
    if (!window.open(kOkCancel, screenHeight(), 4, 40))
        return kFailed;
    Picker picker(window, call.argument(0));
    picker.create();
    window.body = &picker;
    window.onKey = [](Window& of, int nKey) { return static_cast<Picker*>(of.body)->key(nKey); };
    window.nFocus = kLine;
    const Answer answer = window.run();
    if (answer == kAccepted || answer == kExtra || answer == kHelped) {
        beginAnswer(settings);
        output.add(entered(window, kLine));
    }
    return answer;
}

} // namespace kuldialog
