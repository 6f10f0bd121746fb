// SPDX-License-Identifier: MIT
//
// Files to read, as they are or while they grow.
#include <fcntl.h>
#include <kulgui.h>
#include <poll.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include "boxes.hpp"
#include "options.hpp"
#include "terminal.hpp"
#include "window.hpp"

namespace kuldialog {

namespace {

// What comes out of a pipe or device goes into a file of its own, in memory, up to this. A key
// ends the waiting for more.
constexpr std::size_t kMostCopied = 16 * 1024 * 1024;

bool hasMore(int nFrom)
{
    pollfd ends[] = {{nFrom, POLLIN, 0}, {STDIN_FILENO, POLLIN, 0}};
    return poll(ends, 2, -1) > 0 && ends[0].revents;
}

int copied(int nFrom)
{
    const int nTo = memfd_create(program, MFD_CLOEXEC);
    char part[4096];
    std::size_t all = 0;
    ssize_t size;
    while (nTo >= 0 && all < kMostCopied && hasMore(nFrom) &&
           (size = read(nFrom, part, sizeof part)) > 0) {
        if (write(nTo, part, static_cast<std::size_t>(size)) != size)
            break;
        all += static_cast<std::size_t>(size);
    }
    return nTo;
}

// A name that the viewer can load; one of the kernel's where the file is no regular one. False
// where there is nothing to read.
bool loadable(const char* szFile, Buffer& name)
{
    int nFd = open(szFile, O_RDONLY | O_CLOEXEC);
    // The terminal has taken the place of what the script has behind a name like /dev/stdin.
    const bool given = nFd >= 0 && isatty(nFd);
    if (given)
        nFd = nScriptInput;
    struct stat status;
    if (nFd < 0 || fstat(nFd, &status) != 0 || S_ISDIR(status.st_mode) || isatty(nFd)) {
        complain("cannot read", szFile);
        return false;
    }
    const bool regular = S_ISREG(status.st_mode);
    if (regular && !given)
        name.add(szFile);
    else
        name.add("/proc/self/fd/").addNumber(regular ? nFd : copied(nFd));
    if (!given)
        close(nFd);
    return true;
}

// Enter takes the button; left and right go to the others.
int viewKey(Window& window, int nKey)
{
    if (!window.has(kBody))
        return nKey;
    if (nKey == KS_ENTER) {
        Window::chooseDefault();
        return 0;
    }
    if (nKey == KS_LEFT || nKey == KS_RIGHT) {
        window.goToButtons(nKey == KS_LEFT ? -1 : 1);
        return 0;
    }
    return nKey;
}

} // namespace

Answer runView(const Call& call)
{
    Buffer file;
    if (!loadable(call.argument(0), file))
        return kFailed;
    Window window(call, "");
    if (!window.open(name == kWhiptail ? kOk : kExit, screenHeight(), 1, screenWidth()))
        return kFailed;
    kulfileview_create(window.nChain, kBody);
    made(kulfileview_config(window.nChain, kBody, colors[kWindowColor], colors[kWindowColor],
                            KUL_KEEP, 1, 1, window.nWidth - 2, window.nBodyHeight, NOBORDER,
                            file.text(), nullptr, nullptr, nullptr, nullptr));
    kulfileview_setFollow(window.nChain, kBody, call.variant == kFollowed ? T : F);
    window.onKey = viewKey;
    window.nFocus = kBody;
    return window.run();
}

} // namespace kuldialog
