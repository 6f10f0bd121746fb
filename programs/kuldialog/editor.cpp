// SPDX-License-Identifier: MIT
//
// A text file to change: each of its lines is a field of a form that runs over the window.
#include <algorithm>
#include <cstdlib>
#include <cstring>

#include <fcntl.h>
#include <kulgui.h>
#include <sys/stat.h>
#include <unistd.h>

#include "boxes.hpp"
#include "entry.hpp"
#include "form.hpp"
#include "options.hpp"
#include "output.hpp"
#include "terminal.hpp"

namespace kuldialog {

namespace {

// One that is longer in the file stays so, but takes no more letters. There is room for them in the
// lines that get keys.
constexpr int kLongestLine = 2048;

Field lineOf(const char* szText, std::size_t size, const Window& window)
{
    return {copyOf(szText, size), "", 0, 0, 0, 0, window.innerWidth(), 1, false};
}

// The rows of lines are their places.
void number(Fields& lines)
{
    for (int i = 0; i < lines.count(); ++i)
        lines[i].y = i;
}

bool read(const char* szFile, Fields& lines, const Window& window)
{
    struct stat status;
    const bool regular = stat(szFile, &status) == 0 && S_ISREG(status.st_mode);
    const int nFd = regular ? open(szFile, O_RDONLY | O_CLOEXEC) : -1;
    Buffer file;
    if (nFd < 0 || !file.addFrom(nFd)) {
        complain("not a file:", szFile);
        return false;
    }
    close(nFd);
    bool complete = true;
    const char* end = file.text() + file.size();
    for (const char* at = file.text(); complete && (at < end || lines.count() == 0);) {
        const char* stop = lineEnd(at, end);
        complete = lines.add(lineOf(at, static_cast<std::size_t>(stop - at), window));
        at = stop + 1;
    }
    number(lines);
    return complete;
}

class Editor {
public:
    Editor(Window& window, Fields& lines) : window_(window), lines_(lines) {}
    int key(int nKey);

private:
    KULTEXTBOX* box() const;
    void putCursor(int nLetter);
    void split();
    void join(int nFirst);

    Window& window_;
    Fields& lines_;
};

KULTEXTBOX* Editor::box() const
{
    const UI* ui = GetUIComponentByRef(window_.nChain, GetCurrentSelection()->nUserInterface);
    return ui && ui->nType == TEXTBOX ? static_cast<KULTEXTBOX*>(ui->Pointer) : nullptr;
}

// Puts the cursor of the current line on a letter, or behind its last one.
void Editor::putCursor(int nLetter)
{
    const char* szText = entered(window_, window_.nFocus);
    kultextbox_setCursor(window_.nChain, window_.nFocus,
                         std::min(nLetter, letters(szText, std::strlen(szText))));
}

// What is behind the cursor goes to a line of its own.
void Editor::split()
{
    const int nLine = lines_.current();
    const std::size_t before = static_cast<std::size_t>(box()->nCursorPos);
    lines_.keep();
    char* text = lines_[nLine].text;
    const std::size_t size = std::strlen(text);
    const std::size_t cut = std::min(before, size);
    if (!lines_.insert(nLine + 1, lineOf(text + cut, size - cut, window_)))
        return lines_.fill();
    text[cut] = '\0';
    number(lines_);
    lines_.fill();
    lines_.go(nLine + 1);
    putCursor(0);
}

// A line and the next one become one.
void Editor::join(int nFirst)
{
    if (nFirst < 0 || nFirst + 1 >= lines_.count())
        return;
    lines_.keep();
    Buffer both;
    both.add(lines_[nFirst].text);
    const int nCursor = letters(both.text(), both.size());
    both.add(lines_[nFirst + 1].text);
    char* text = both.size() <= kLongestLine ? copyOf(both.text(), both.size()) : nullptr;
    if (text) {
        std::free(lines_[nFirst].text);
        lines_[nFirst].text = text;
        lines_.remove(nFirst + 1);
        number(lines_);
    }
    lines_.fill();
    lines_.go(nFirst);
    putCursor(nCursor);
}

int Editor::key(int nKey)
{
    const KULTEXTBOX* line = box();
    if (!line)
        return lines_.key(nKey);
    const bool atStart = line->nCursorPos == 0;
    const bool atEnd = line->nCursorPos >= line->nLength;
    if (nKey == KS_ENTER) {
        split();
        return 0;
    }
    if ((nKey == KS_BACKSPACE && atStart) || (nKey == KS_DELETE && atEnd)) {
        join(lines_.current() - (nKey == KS_BACKSPACE));
        return 0;
    }
    if (nKey != KS_UP && nKey != KS_DOWN && nKey != KS_PAGEUP && nKey != KS_PAGEDOWN) {
        setLimit(window_, window_.nFocus, kLongestLine, entered(window_, window_.nFocus));
        return lines_.key(nKey);
    }
    // The cursor goes straight up and down.
    const int nCursor = letters(line->szText, static_cast<std::size_t>(line->nCursorPos));
    lines_.key(nKey);
    putCursor(nCursor);
    return 0;
}

} // namespace

Answer runEditor(const Call& call)
{
    const Settings& settings = call.settings;
    Window window(call, "");
    Fields lines(window);
    if (!window.open(kOkCancel, screenHeight(), 1, screenWidth()) ||
        !read(call.argument(0), lines, window))
        return kFailed;
    lines.create();
    Editor editor(window, lines);
    window.body = &editor;
    window.onKey = [](Window& of, int nKey) { return static_cast<Editor*>(of.body)->key(nKey); };
    const Answer answer = window.run();
    if (answer == kAccepted) {
        lines.keep();
        beginAnswer(settings);
        for (int i = 0; i < lines.count(); ++i)
            addLine(settings, lines[i].text);
    }
    return answer;
}

} // namespace kuldialog
