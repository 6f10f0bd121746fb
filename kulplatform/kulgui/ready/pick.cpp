// SPDX-License-Identifier: MIT
//
// A file to pick, walking directories: Enter goes into one, Backspace to the one above.
#include <climits>
#include <cstdio>
#include <cstring>
#include <initializer_list>

#include <dirent.h>
#include <sys/stat.h>

#include "frame.hpp"

namespace {

using kulready::BODY;
using kulready::Frame;

constexpr int kRows = 14;
constexpr int kColumns = 44;

struct Pick {
    char szDirectory[PATH_MAX];
    char* szBuffer;
    int nSize;
};

Pick& pickOf(const Frame& frame)
{
    return *static_cast<Pick*>(frame.body);
}

bool join(char (&szPath)[PATH_MAX], const char* szDirectory, const char* szName)
{
    const std::size_t size = std::strlen(szDirectory);
    const char* szSlash = size > 0 && szDirectory[size - 1] == '/' ? "" : "/";
    return std::snprintf(szPath, sizeof szPath, "%s%s%s", szDirectory, szSlash, szName) < PATH_MAX;
}

bool isDirectory(const char* szDirectory, const char* szName)
{
    char szPath[PATH_MAX];
    struct stat status {};
    return join(szPath, szDirectory, szName) && stat(szPath, &status) == 0 &&
           S_ISDIR(status.st_mode);
}

// Lists a directory: what leads up, then directories, then files, each by name. False when it
// cannot be read; the list is then as it was.
bool list(const Frame& frame, const char* szDirectory)
{
    dirent** entries = nullptr;
    const int nEntries = scandir(szDirectory, &entries, nullptr, alphasort);
    if (nEntries < 0)
        return false;
    kuldynmenu_config(frame.chain(), BODY, KUL_KEEP, KUL_KEEP, KUL_KEEP, frame.bodyX(),
                      frame.bodyY(), frame.bodyWidth() - 2, frame.bodyHeight() - 2, nullptr,
                      nullptr, nullptr, nullptr);
    for (const bool directories : {true, false}) {
        for (int i = 0; i < nEntries; ++i) {
            const char* szName = entries[i]->d_name;
            if (std::strcmp(szName, ".") == 0 || isDirectory(szDirectory, szName) != directories)
                continue;
            kulready::Text name;
            name.add(szName);
            if (directories)
                name.add("/");
            if (name.isWhole())
                kuldynmenu_addElement(frame.chain(), BODY, name.text(), nullptr, nullptr, 1);
        }
    }
    for (int i = 0; i < nEntries; ++i)
        std::free(entries[i]);
    std::free(entries);
    kulgui_select(frame.chain(), BODY, 0);
    return true;
}

// Goes into a directory of the one that is shown.
void enter(Frame& frame, const char* szName)
{
    Pick& pick = pickOf(frame);
    char szPath[PATH_MAX];
    char szReal[PATH_MAX];
    if (!join(szPath, pick.szDirectory, szName) || !realpath(szPath, szReal) ||
        !list(frame, szReal))
        return;
    std::snprintf(pick.szDirectory, sizeof pick.szDirectory, "%s", szReal);
    frame.setText(pick.szDirectory, false);
}

// The selected name; null for none.
const char* selected(const Frame& frame)
{
    const UI* ui = GetUIComponentByRef(frame.chain(), BODY);
    const auto* menu = ui ? static_cast<const KULDYNMENU*>(ui->Pointer) : nullptr;
    const KULMENUELEMENT* element = menu ? menu->Element : nullptr;
    for (int i = 0; element && i < menu->nSelect; ++i)
        element = element->Next;
    return element ? element->szText : nullptr;
}

// A directory is gone into, a file ends the dialog if its name fits.
bool mayEnd(Frame& frame, int nButton)
{
    const char* szName = selected(frame);
    if (nButton != 0)
        return true;
    if (!szName)
        return false;
    Pick& pick = pickOf(frame);
    if (szName[std::strlen(szName) - 1] == '/') {
        enter(frame, szName);
        return false;
    }
    char szPath[PATH_MAX];
    if (!join(szPath, pick.szDirectory, szName) ||
        std::strlen(szPath) >= static_cast<std::size_t>(pick.nSize))
        return false;
    std::snprintf(pick.szBuffer, static_cast<std::size_t>(pick.nSize), "%s", szPath);
    return true;
}

int pickKey(Frame& frame, int nKey)
{
    if (nKey != KS_BACKSPACE || Frame::focused() != BODY)
        return nKey;
    enter(frame, "..");
    return 0;
}

int runPick(Frame& frame, Pick& pick)
{
    frame.body = &pick;
    frame.want(kRows, 4, kColumns);
    frame.addButtons(kulready::word(KULWORD_OK), kulready::word(KULWORD_CANCEL));
    if (!frame.open())
        return kulready::kUnusable;
    kuldynmenu_create(frame.chain(), BODY);
    if (!list(frame, pick.szDirectory))
        return kulready::kUnusable;
    frame.onKey = pickKey;
    frame.mayEnd = mayEnd;
    const int nResult = frame.run();
    return nResult == 1 ? kulready::kCancelled : nResult;
}

} // namespace

int kuldialog_pick(const char* szTitle, const char* szDirectory, char* szBuffer, int nSize)
{
    Pick pick = {{}, szBuffer, nSize};
    if (!szBuffer || nSize < 1 || !realpath(szDirectory ? szDirectory : ".", pick.szDirectory))
        return kulready::kUnusable;
    return kulready::runReady(szTitle, pick.szDirectory,
                              [&](Frame& frame) { return runPick(frame, pick); });
}
