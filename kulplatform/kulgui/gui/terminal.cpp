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
#include "frame.hpp"
#include "line.hpp"
#include "screen.hpp"
#include "signals.hpp"

namespace {

int nEnvSetting = F;
bool isOpen = false;

// Ends curses' hold on the terminal; the descriptor's flags are the caller's.
void closeScreen()
{
    const kul::Blocking blocking;
    isOpen = false;
    echo();
    wclear(stdscr);
    if (!kul::hasOwnScreen()) {
        wnoutrefresh(stdscr);
        doupdate();
    }
    endwin();
    kul::giveBackSignals();
}

void closeAtExit()
{
    if (!isOpen || !kul::isOwner())
        return;
    closeScreen();
    kul::restoreFlags();
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

// Whether curses is ready on the terminal, in our modes.
bool beginScreen()
{
    const kul::Blocking blocking;
    if (!startScreen())
        return false;
    wclear(stdscr);
    leaveok(stdscr, TRUE);
    noecho();
    raw();
    curs_set(0);
    start_color();
    InitializeColorSets();
    kul::defineShadow();
    return true;
}

} // namespace

bool kul::lookAtTerminal()
{
    if (!resumed())
        return false;
    const Pass pass; // its update paints everything
    return true;
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
    const bool wasOpen = isOpen;
    if (!wasOpen) {
        kul::noteOutside();
        kul::findSignals();
    }
    if (!beginScreen())
        return -1;
    fcntl(STDIN_FILENO, F_SETFL, O_NONBLOCK);
    kul::noteInside();
    isOpen = true;
    if (!wasOpen)
        kul::takeSignals();
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
