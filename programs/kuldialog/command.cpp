// SPDX-License-Identifier: MIT
//
// The output of a command as it comes, from a pipe or from a command that is started here. The last
// of it is kept; escape sequences do nothing.
#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>

#include <fcntl.h>
#include <kulgui.h>
#include <signal.h>
#include <unistd.h>

#include "boxes.hpp"
#include "output.hpp"
#include "terminal.hpp"
#include "window.hpp"

namespace kuldialog {

namespace {

constexpr std::size_t kMostKept = 65536;

struct Stream {
    Window& window;
    int nFd;
    bool leavesAtEnd;
    bool ended = false;
    Buffer text{};
    Area area{kSecondArea};
};

Stream* stream = nullptr;

// Takes what can be shown: without escape sequences and carriage returns, tabs as blanks.
class Cleaner {
public:
    void take(Buffer& text, char character)
    {
        const auto byte = static_cast<unsigned char>(character);
        if (state_ != kPlainText) {
            state_ = after(byte);
        } else if (byte == '\033') {
            state_ = kEscape;
        } else if (byte == '\t') {
            text.add("        ", 8 - column_ % 8);
            column_ += 8 - column_ % 8;
        } else if (byte == '\n' || byte >= ' ') {
            column_ = byte == '\n' ? 0 : column_ + 1;
            text.add(character);
        }
    }

private:
    enum State { kPlainText, kEscape, kSequence, kString };

    State after(unsigned char byte) const
    {
        switch (state_) {
        case kEscape:
            return byte == '[' ? kSequence : byte == ']' || byte == 'P' ? kString : kPlainText;
        case kSequence:
            return byte >= '@' ? kPlainText : kSequence;
        default:
            return byte == '\a' ? kPlainText : byte == '\033' ? kEscape : kString;
        }
    }

    State state_ = kPlainText;
    std::size_t column_ = 0;
};

Cleaner cleaner;

// Forgets whole lines at the front when there is more than is kept.
void limit(Buffer& text)
{
    if (text.size() <= kMostKept)
        return;
    const std::size_t over = text.size() - kMostKept / 2;
    const char* line = std::strchr(text.text() + over, '\n');
    text.cutFront(line ? static_cast<std::size_t>(line + 1 - text.text()) : over);
}

void outputReady()
{
    char part[4096];
    const ssize_t size = read(stream->nFd, part, sizeof part);
    if (size < 0 && (errno == EAGAIN || errno == EINTR))
        return;
    if (size <= 0) {
        kulgui_watch(stream->nFd, nullptr);
        stream->ended = true;
        if (stream->leavesAtEnd)
            Window::end(kAccepted);
        return;
    }
    for (ssize_t i = 0; i < size; ++i)
        cleaner.take(stream->text, part[i]);
    limit(stream->text);
    stream->area.wrap(stream->text.text(), stream->window.nWidth);
    stream->area.showEnd();
}

// Nothing is answered before the output is over; the text can be moved meanwhile.
int streamKey(Window&, int nKey)
{
    if (stream->area.scroll(nKey))
        return 0;
    const bool answers =
        nKey == KS_ENTER || nKey == KS_SPACE || nKey == KS_ESC || (nKey > KS_SPACE && nKey < 127);
    return answers && !stream->ended ? 0 : nKey;
}

// Starts a command whose output comes from the descriptor that is returned, -1 for none.
int start(const char* szCommand, pid_t& child)
{
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0)
        return -1;
    child = fork();
    if (child == 0) {
        const int nNothing = open("/dev/null", O_RDONLY);
        dup2(nNothing, STDIN_FILENO);
        dup2(ends[1], STDOUT_FILENO);
        dup2(ends[1], STDERR_FILENO);
        execl("/bin/sh", "sh", "-c", szCommand, nullptr);
        _exit(127);
    }
    close(ends[1]);
    return child > 0 ? ends[0] : -1;
}

} // namespace

Answer runCommand(const Call& call)
{
    const Settings& settings = call.settings;
    const bool starts = call.variant == kStarted;
    const int nSize = call.count - 2;
    const bool titled = nSize > starts;
    Window window(settings, titled ? call.argument(0) : "", call.number(nSize),
                  call.number(nSize + 1));
    window.wantBody(LINES, 1, COLS);
    if (call.variant != kPassedOn)
        window.addButtons(settings.text(kOkLabel, "OK"), nullptr);
    if (!window.open())
        return kFailed;
    pid_t child = -1;
    const int nFd = starts ? start(call.argument(titled), child) : nScriptInput;
    if (nFd < 0)
        return kFailed;
    Stream reading{window, nFd, call.variant == kPassedOn};
    reading.area.wrap("", window.nWidth);
    reading.area.create(window.nChain, window.nBodyY, window.nBodyHeight);
    stream = &reading;
    window.onKey = streamKey;
    kulgui_watch(nFd, outputReady);
    const Answer answer = window.run();
    kulgui_watch(nFd, nullptr);
    if (child > 0 && !reading.ended)
        kill(child, SIGHUP);
    if (child > 0)
        close(nFd);
    return answer;
}

} // namespace kuldialog
