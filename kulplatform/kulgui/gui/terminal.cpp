// SPDX-License-Identifier: MIT
//
// Opening the terminal, and giving it back as it was found on every way out: an ordinary close,
// exit(), a signal that ends the process or one that stops it.
//
// A signal may come at any moment, also while curses is at work, so its handler does not call
// curses: the bytes that leave and re-enter the screen and the terminal's modes are kept ready
// from the time of opening, and the handler only writes and sets them.
#include "terminal.hpp"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <initializer_list>

#include <fcntl.h>
#include <poll.h>
#include <term.h>
#include <termios.h>
#include <unistd.h>

#include "../kulgui.h"
#include "description.hpp"
#include "frame.hpp"

namespace {

// What curses would send, captured.
struct Bytes {
    char text[256];
    std::size_t size;
};

struct Modes {
    termios tty;
    int nFlags; // of standard input's descriptor
};

int nEnvSetting = F;
bool isOpen = false;
bool ttyKnown = false;
bool ownScreen = false; // leaving it brings back what was there before
Modes outside;          // as found
Modes inside;           // as the open terminal has them
Bytes leaving;          // gives the screen back
Bytes entering;         // takes it again
Bytes* capture = nullptr;
volatile sig_atomic_t nResumed = 0;

constexpr int kCaught[] = {SIGHUP, SIGINT, SIGQUIT, SIGTERM, SIGTSTP};
constexpr int kCaughtCount = sizeof kCaught / sizeof *kCaught;
bool ours[kCaughtCount];

int captureByte(int c)
{
    if (capture->size < sizeof capture->text)
        capture->text[capture->size++] = static_cast<char>(c);
    return c;
}

void captureString(const char* szString)
{
    if (kul::isString(szString))
        tputs(szString, 1, captureByte);
}

void captureAll(Bytes& bytes, std::initializer_list<const char*> names)
{
    bytes.size = 0;
    capture = &bytes;
    for (const char* name : names)
        captureString(tigetstr(name));
}

// Without a second screen to leave, what was drawn is cleared away.
void prepareBytes()
{
    ownScreen = kul::isString(tigetstr("rmcup"));
    captureAll(leaving, {"sgr0", "op", ownScreen ? "rmcup" : "clear", "cnorm"});
    if (!ownScreen)
        captureString(tiparm(tigetstr("cup"), LINES - 1, 0));
    captureAll(entering, {"smcup", "civis"});
}

// Writes without waiting for a line that takes nothing any more.
void send(const Bytes& bytes)
{
    for (std::size_t sent = 0; sent < bytes.size;) {
        const ssize_t n = write(STDOUT_FILENO, bytes.text + sent, bytes.size - sent);
        if (n > 0) {
            sent += static_cast<std::size_t>(n);
            continue;
        }
        // A line that was hung up is writable for ever.
        pollfd line{STDOUT_FILENO, POLLOUT, 0};
        if (poll(&line, 1, 200) != 1 || line.revents != POLLOUT)
            return;
    }
}

void setModes(const Modes& modes)
{
    if (ttyKnown)
        tcsetattr(STDOUT_FILENO, TCSANOW, &modes.tty);
    if (modes.nFlags != -1)
        fcntl(STDIN_FILENO, F_SETFL, modes.nFlags);
}

void setHandler(int nSignal, void (*handler)(int))
{
    struct sigaction action {};
    action.sa_handler = handler;
    sigemptyset(&action.sa_mask);
    sigaction(nSignal, &action, nullptr);
}

// In the background the terminal belongs to somebody else; setting its modes would stop the
// process.
bool isInForeground()
{
    const pid_t nGroup = tcgetpgrp(STDOUT_FILENO);
    return nGroup == -1 || nGroup == getpgrp();
}

void onSignal(int nSignal)
{
    const int nError = errno;
    if (isInForeground()) {
        send(leaving);
        setModes(outside);
    }
    setHandler(nSignal, SIG_DFL);
    // Blocked while this handler runs: let it through, to end or to stop the process here.
    sigset_t self;
    sigset_t before;
    sigemptyset(&self);
    sigaddset(&self, nSignal);
    raise(nSignal);
    sigprocmask(SIG_UNBLOCK, &self, &before);
    // Only a stopped process comes here, when it is continued.
    sigprocmask(SIG_SETMASK, &before, nullptr);
    setHandler(nSignal, onSignal);
    setModes(inside);
    send(entering);
    nResumed = 1;
    errno = nError;
}

bool isHandledBy(int nSignal, void (*handler)(int))
{
    struct sigaction action {};
    return sigaction(nSignal, nullptr, &action) == 0 && !(action.sa_flags & SA_SIGINFO) &&
           action.sa_handler == handler;
}

// Which signals the program leaves to us; asked before curses takes some for itself.
void findOurs()
{
    for (int i = 0; i < kCaughtCount; ++i)
        ours[i] = isHandledBy(kCaught[i], SIG_DFL);
}

void takeOurs()
{
    for (int i = 0; i < kCaughtCount; ++i) {
        if (ours[i])
            setHandler(kCaught[i], onSignal);
    }
}

// Not those for which the program has set a handler meanwhile.
void giveBackOurs()
{
    for (const int nSignal : kCaught) {
        if (isHandledBy(nSignal, onSignal))
            setHandler(nSignal, SIG_DFL);
    }
}

// Ends curses' hold on the terminal; the descriptor's flags are the caller's.
void closeScreen()
{
    isOpen = false;
    giveBackOurs();
    echo();
    wclear(stdscr);
    if (!ownScreen) {
        wnoutrefresh(stdscr);
        doupdate();
    }
    endwin();
}

void closeAtExit()
{
    if (!isOpen)
        return;
    closeScreen();
    if (outside.nFlags != -1)
        fcntl(STDIN_FILENO, F_SETFL, outside.nFlags);
    nEnvSetting = F;
}

// Makes curses' screen on first use, takes it again later.
bool startScreen()
{
    if (stdscr) {
        if (isendwin()) {
            clearok(curscr, TRUE);
            doupdate();
        }
        return true;
    }
    return isatty(STDOUT_FILENO) && kul::openScreen(nullptr, stdout, stdin) &&
           def_prog_mode() == OK;
}

} // namespace

namespace kul {

bool resumed()
{
    const bool result = nResumed != 0;
    nResumed = 0;
    return result;
}

} // namespace kul

int NCursesEnv(int nRef)
{
    int nResult = nRef;
    if (nRef == 0)
        return nEnvSetting;
    if (nRef == 1 && (nResult = SetupGUIEnvironment()) == 0)
        nEnvSetting = T;
    if (nRef == 2 && (nResult = EndGUIEnvironment()) == 0)
        nEnvSetting = F;
    return nResult;
}

int SetupGUIEnvironment()
{
    static bool atExit = false;
    const bool wasOpen = isOpen;
    if (!wasOpen) {
        outside.nFlags = fcntl(STDIN_FILENO, F_GETFL);
        ttyKnown = tcgetattr(STDOUT_FILENO, &outside.tty) == 0;
        findOurs();
    }
    if (!startScreen())
        return -1;
    fcntl(STDIN_FILENO, F_SETFL, O_NONBLOCK);
    wclear(stdscr);
    leaveok(stdscr, TRUE);
    noecho();
    raw();
    curs_set(0);
    start_color();
    InitializeColorSets();
    kul::defineShadow();
    inside.nFlags = O_NONBLOCK;
    if (ttyKnown)
        tcgetattr(STDOUT_FILENO, &inside.tty);
    prepareBytes();
    isOpen = true;
    if (!wasOpen)
        takeOurs();
    if (!atExit)
        atExit = std::atexit(closeAtExit) == 0;
    return 0;
}

int EndGUIEnvironment()
{
    fcntl(STDIN_FILENO, F_SETFL, O_APPEND);
    if (isOpen)
        closeScreen();
    return 0;
}

int InitializeColorSets()
{
    short nPair = 0;
    for (short foreground = COLOR_BLACK; foreground <= COLOR_WHITE; ++foreground) {
        for (short background = COLOR_BLACK; background <= COLOR_WHITE; ++background) {
            if (foreground != background)
                init_pair(nPair++, foreground, background);
        }
    }
    return 0;
}
