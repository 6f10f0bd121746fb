// SPDX-License-Identifier: MIT
//
// The output of a command as it comes, from a pipe or from a command that is started here.
#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>

#include <fcntl.h>
#include <kulgui.h>
#include <signal.h>
#include <unistd.h>

#include "boxes.hpp"
#include "ready/output.hpp"
#include "terminal.hpp"
#include "window.hpp"

namespace kuldialog {

namespace {

struct Stream {
    Window& window;
    int nFd;
    bool leavesAtEnd;
    bool ended = false;
    kulready::Output output{};
    kulready::Area area{kSecondArea, kSecondBar};
};

Stream* stream = nullptr;

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
    const bool follows = stream->area.isAtEnd();
    stream->output.feed(part, static_cast<std::size_t>(size));
    stream->area.wrap(stream->output.text(), stream->window.nWidth);
    stream->area.show(follows);
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
    const bool starts = call.variant == kStarted;
    const int nSize = call.count - 2;
    const bool titled = nSize > starts;
    Window window(call, titled ? call.argument(0) : "", nSize);
    if (!window.open(call.variant == kPassedOn ? kNoButtons : kOk, screenHeight(), 1,
                     screenWidth()))
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
