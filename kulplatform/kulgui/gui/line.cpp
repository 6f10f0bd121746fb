// SPDX-License-Identifier: MIT
//
// A signal may come at any moment, also while curses is at work, so its handler does not call
// curses: the bytes that leave and re-enter the screen and the terminal's modes are kept ready
// from the time of opening, and a handler only writes and sets them.
#include "line.hpp"

#include <cerrno>
#include <csignal>
#include <initializer_list>

#include <curses.h>
#include <fcntl.h>
#include <poll.h>
#include <term.h>
#include <termios.h>
#include <unistd.h>

#include "description.hpp"
#include "signals.hpp"

namespace kul {

namespace {

// A line that takes nothing gets this many chances to take the last bytes, so far apart.
constexpr int kLastTries = 15;
constexpr int kLastMilliseconds = 20;

// What curses would send, captured.
struct Bytes {
    char text[256];
    std::size_t size;
};

struct Modes {
    termios tty;
    bool known;
    int nFlags; // of standard input's descriptor
};

int nOutput = STDOUT_FILENO;
volatile sig_atomic_t nBlocking = 0;
bool ownScreen = false;
Modes outside;         // as found
Modes inside;          // as the open terminal has them
Bytes leaving;         // gives the screen back
std::size_t nClearing; // of these, in the colours that were there before
Bytes entering;
Bytes* capture = nullptr;

Modes currentModes()
{
    Modes modes{};
    modes.nFlags = fcntl(STDIN_FILENO, F_GETFL);
    modes.known = tcgetattr(STDOUT_FILENO, &modes.tty) == 0;
    return modes;
}

void setModes(const Modes& modes)
{
    if (modes.known)
        tcsetattr(STDOUT_FILENO, TCSANOW, &modes.tty);
    if (modes.nFlags != -1)
        fcntl(STDIN_FILENO, F_SETFL, modes.nFlags);
}

int captureByte(int c)
{
    if (capture->size < sizeof capture->text)
        capture->text[capture->size++] = static_cast<char>(c);
    return c;
}

void captureString(const char* szString)
{
    if (isString(szString))
        tputs(szString, 1, captureByte);
}

void captureAll(Bytes& bytes, std::initializer_list<const char*> names)
{
    capture = &bytes;
    for (const char* name : names)
        captureString(tigetstr(name));
}

// Writes what a line takes that may be held, slow or hung up.
void send(const Bytes& bytes)
{
    const int nFlags = fcntl(STDOUT_FILENO, F_GETFL);
    fcntl(STDOUT_FILENO, F_SETFL, nFlags | O_NONBLOCK);
    std::size_t sent = 0;
    for (int nTries = 0; sent < bytes.size && nTries < kLastTries;) {
        const ssize_t n = write(STDOUT_FILENO, bytes.text + sent, bytes.size - sent);
        if (n > 0) {
            sent += static_cast<std::size_t>(n);
            continue;
        }
        // A slow line has room again long before poll() calls it writable.
        pollfd line{STDOUT_FILENO, POLLOUT, 0};
        ++nTries;
        if (poll(&line, 1, kLastMilliseconds) == 1 && line.revents != POLLOUT)
            break;
    }
    fcntl(STDOUT_FILENO, F_SETFL, nFlags);
}

} // namespace

void setOutput(std::FILE* output)
{
    nOutput = fileno(output);
}

void writeAll(const char* bytes, std::size_t size)
{
    while (size > 0) {
        const ssize_t n = write(nOutput, bytes, size);
        if (n > 0) {
            bytes += n;
            size -= static_cast<std::size_t>(n);
        } else if (n < 0 && errno == EAGAIN) {
            pollfd line{nOutput, POLLOUT, 0};
            poll(&line, 1, -1);
        } else if (n == 0 || errno != EINTR) {
            return;
        }
    }
}

Controls passingControls()
{
    termios tty{};
    if (tcgetattr(nOutput, &tty) != 0 || !(tty.c_oflag & OPOST))
        return {true, true};
    return {!(tty.c_oflag & ONLCR), (tty.c_oflag & TABDLY) != XTABS};
}

Blocking::Blocking() : nFlags_(fcntl(nOutput, F_GETFL))
{
    if (nFlags_ == -1 || !(nFlags_ & O_NONBLOCK))
        return;
    nBlocking = nBlocking + 1;
    fcntl(nOutput, F_SETFL, nFlags_ & ~O_NONBLOCK);
}

Blocking::~Blocking()
{
    if (nFlags_ == -1 || !(nFlags_ & O_NONBLOCK))
        return;
    nBlocking = nBlocking - 1;
    fcntl(nOutput, F_SETFL, nFlags_);
}

void noteOutside()
{
    outside = currentModes();
}

void noteInside()
{
    inside = currentModes();
    prepareBytes();
}

// An update that was under way may have left any look, and rows that scroll by themselves.
void prepareBytes()
{
    const HandlersWait wait(HandlersWait::Which::All);
    const char* szAllRows = codes().scrolls ? "\033[r" : nullptr;
    ownScreen = isString(tigetstr("rmcup"));
    leaving.size = entering.size = 0;
    // Where the codes are known, all attributes are switched off with the colours.
    captureAll(leaving, {"sgr0", codes().known ? "" : "op", ownScreen ? "" : "clear"});
    nClearing = leaving.size;
    captureString(szAllRows);
    captureAll(leaving, {ownScreen ? "rmcup" : "", "cnorm"});
    // Without a second screen to leave, what was drawn is cleared away.
    if (!ownScreen)
        captureString(tiparm(tigetstr("cup"), LINES - 1, 0));
    // Some terminals keep with the other screen's cursor whether it is seen.
    captureAll(entering, {ownScreen ? "cnorm" : "", "smcup", "sgr0", "enacs", "civis"});
    captureString(szAllRows);
}

bool hasOwnScreen()
{
    return ownScreen;
}

void endScreen(bool keeps)
{
    const bool stays = keeps && !ownScreen && codes().known;
    if (!keeps && !ownScreen)
        writeAll(leaving.text, nClearing);
    // Where curses takes the terminal's colours for its own, it does not go to the last row twice;
    // but that is not changed where the program has said what they are.
    short nForeground = 0;
    short nBackground = 0;
    pair_content(0, &nForeground, &nBackground);
    const bool assumes = stays && nForeground == COLOR_WHITE && nBackground == COLOR_BLACK;
    if (assumes)
        assume_default_colors(-1, -1);
    endwin();
    if (stays)
        writeAll("\033[K", 3);
    if (assumes) {
        assume_default_colors(COLOR_WHITE, COLOR_BLACK);
        pairZeroTaken = true;
    }
}

void enterScreen()
{
    writeAll(entering.text, entering.size);
}

void takeQuietly(int (*take)())
{
    const int nLine = dup(nOutput);
    const int nNothing = open("/dev/null", O_WRONLY | O_CLOEXEC);
    const HandlersWait wait(HandlersWait::Which::All); // they give the line back
    const bool quiet = nLine != -1 && nNothing != -1 && dup2(nNothing, nOutput) == nOutput;
    take();
    if (quiet)
        dup2(nLine, nOutput);
    close(nLine);
    close(nNothing);
}

void restoreFlags()
{
    if (outside.nFlags != -1)
        fcntl(STDIN_FILENO, F_SETFL, outside.nFlags);
}

void leaveLine()
{
    send(leaving);
    setModes(outside);
}

void enterLine()
{
    Modes modes = inside;
    if (nBlocking && modes.nFlags != -1)
        modes.nFlags &= ~O_NONBLOCK; // in the middle of a Blocking
    setModes(modes);
    send(entering);
}

} // namespace kul
