// SPDX-License-Identifier: MIT
//
// Opening the terminal, and giving it back as it was found on every way out: an ordinary close,
// exit(), a signal that ends the process or one that stops it.
#include "terminal.hpp"

#include <cstdlib>

#include <fcntl.h>
#include <unistd.h>

#include "../kulgui.h"
#include "description.hpp"
#include "line.hpp"
#include "place.hpp"
#include "resize.hpp"
#include "screen.hpp"
#include "signals.hpp"

namespace {

enum class State { Closed, Suspended, Open };

int nEnvSetting = F;
State state = State::Closed;
bool keepsScreen = false;
bool opening = false; // curses may end the process meanwhile, when it has no memory

// Ends curses' hold on the terminal. A stop comes when all of it is as it was found: the handlers
// do not know of half of it.
void leaveScreen(State next)
{
    const kul::HandlersWait wait(kul::HandlersWait::Which::OfStops);
    kul::restoreFlags();
    const kul::Blocking blocking;
    state = next;
    echo();
    if (kul::resumed()) // without curses, which shows no cursor that it has not hidden
        curs_set(0);
    kul::endScreen(keepsScreen);
    kul::giveBackSignals();
}

void closeScreen()
{
    leaveScreen(State::Closed);
    wclear(stdscr);
}

void closeAtExit()
{
    if (opening ? !stdscr : state != State::Open || !kul::isOwner())
        return;
    closeScreen();
    nEnvSetting = F;
}

// The panel library makes a panel of its own with the first one, and ends the process without
// memory.
void makeHiddenPanel()
{
    WINDOW* win = newwin(1, 1, 0, 0);
    if (PANEL* panel = win ? new_panel(win) : nullptr)
        del_panel(panel);
    if (win)
        delwin(win);
}

// Curses ends the process for some of what it cannot have memory for as it begins.
bool startCurses()
{
    if (!isatty(STDOUT_FILENO) || !kul::hasMemoryFor(kul::terminalSize()) ||
        !kul::openScreen(nullptr, stdout, stdin))
        return false;
    kul::startSize();
    kul::notePalette();
    makeHiddenPanel();
    return true;
}

// Has curses take the terminal again. It would reset the palette although nothing has changed it.
void resumeCurses()
{
    if (kul::isPaletteKept())
        kul::takeQuietly(doupdate);
    else
        doupdate();
    kul::enterScreen();
    kul::paintAnew();
    kul::fitScreen();
}

// Whether curses is ready on the terminal, in our modes.
bool beginScreen()
{
    const kul::Blocking blocking;
    if (!stdscr && !startCurses())
        return false;
    if (isendwin())
        resumeCurses();
    if (state != State::Suspended)
        wclear(stdscr);
    leaveok(stdscr, TRUE);
    noecho();
    curs_set(0);
    InitializeColorSets();
    kul::defineShadow();
    return true;
}

// Has the line in our modes: curses keeps them, so that it does not matter if a shell has changed
// them while the process was stopped.
void takeLine()
{
    raw();
    fcntl(STDIN_FILENO, F_SETFL, O_NONBLOCK);
    kul::noteInside();
}

// Whether curses is ready on the terminal and the line is ours. A stop comes when all of it is.
bool begin(bool wasOpen)
{
    const kul::HandlersWait wait(kul::HandlersWait::Which::OfStops);
    if (!wasOpen)
        kul::takeSignals();
    opening = true;
    const bool begun = beginScreen();
    opening = false;
    if (begun)
        takeLine();
    else if (!wasOpen)
        kul::giveBackSignals();
    return begun;
}

} // namespace

bool kul::lookAtTerminal()
{
    if (state != State::Open || !isSizeDue())
        return false;
    const bool anew = fitScreen() || resumed();
    const Pass pass;
    runOnResize();
    return anew;
}

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
    const bool wasOpen = state == State::Open;
    if (state == State::Closed)
        kul::noteOutside();
    if (!atExit)
        atExit = std::atexit(closeAtExit) == 0;
    if (!begin(wasOpen))
        return -1;
    state = State::Open;
    while (kul::takeResumed()) {
        takeLine();
        kul::paintAnew();
    }
    return 0;
}

int EndGUIEnvironment()
{
    if (state == State::Open)
        closeScreen();
    state = State::Closed;
    fcntl(STDIN_FILENO, F_SETFL, O_APPEND);
    return 0;
}

int kulgui_keepScreen(int bKeep)
{
    keepsScreen = bKeep == T;
    return state == State::Open && !kul::hasOwnScreen() ? 0 : -1;
}

int kulgui_setAsciiLines(int bAscii)
{
    if (bAscii != T && bAscii != F)
        return KUL_ERROR;
    kul::drawAsciiLines(bAscii == T);
    return KUL_OK;
}

int InitializeColorSets()
{
    short nPair = 0;
    for (short foreground = COLOR_BLACK; foreground <= COLOR_WHITE; ++foreground) {
        for (short background = COLOR_BLACK; background <= COLOR_WHITE; ++background) {
            if (foreground == background)
                continue;
            if (nPair > 0 || !kul::pairZeroTaken)
                init_pair(nPair, foreground, background);
            ++nPair;
        }
    }
    return 0;
}

int kulgui_suspend()
{
    if (state != State::Open)
        return -1;
    leaveScreen(State::Suspended);
    nEnvSetting = F;
    return 0;
}

int kulgui_resume()
{
    if (state != State::Suspended)
        return -1;
    const kul::Pass pass; // its update paints everything
    return NCursesEnv(1);
}

int kulgui_run(const char* szCommand)
{
    if (!szCommand)
        return -1;
    const bool wasOpen = kulgui_suspend() == 0;
    const int nStatus = std::system(szCommand);
    if (wasOpen)
        kulgui_resume();
    return nStatus;
}
