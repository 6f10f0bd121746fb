// SPDX-License-Identifier: MIT
//
// Windows are composed by curses and its panels; this room decides when, and in which order.
#include "screen.hpp"

#include "chain.hpp"
#include "edition.hpp"
#include "frame.hpp"
#include "keys.hpp"
#include "line.hpp"
#include "signals.hpp"

namespace kul {

namespace {

int nPasses = 0;
const OnTop* onTop = nullptr;

// A cell of a window; without a window, none.
struct Cell {
    WINDOW* win;
    int nY;
    int nX;
};

Cell user;
bool cursorSeen = false;

// The topmost panel's window if it is the only one that was drawn into, else null. Nothing lies
// above it, so that it can go out alone; the panel library would compare all that lies below too.
WINDOW* onlyTopTouched()
{
    PANEL* top = nullptr;
    for (PANEL* panel = panel_above(nullptr); panel; panel = panel_above(panel)) {
        if (top && is_wintouched(panel_window(top)))
            return nullptr;
        top = panel;
    }
    return top && !is_wintouched(stdscr) ? panel_window(top) : nullptr;
}

bool anyTouched()
{
    if (is_wintouched(stdscr))
        return true;
    for (PANEL* panel = panel_above(nullptr); panel; panel = panel_above(panel)) {
        if (is_wintouched(panel_window(panel)))
            return true;
    }
    return false;
}

void raiseFocused()
{
    const GUI* gui = onTop ? findDialog(onTop->chain()) : nullptr;
    if (gui && gui->nVisible == T)
        raisePanels(gui->pnlShadow, gui->pnlMain);
}

// Where the terminal's cursor is to stand, as a cell of the whole screen; none where the user is
// not seen.
Cell cursorCell()
{
    PANEL* top = panel_below(nullptr);
    if (!user.win || user.win != (top ? panel_window(top) : stdscr))
        return {};
    if (user.nY < 0 || user.nY >= getmaxy(user.win) || user.nX < 0 || user.nX >= getmaxx(user.win))
        return {};
    const Cell cell{newscr, getbegy(user.win) + user.nY, getbegx(user.win) + user.nX};
    return cell.nY < LINES && cell.nX < COLS ? cell : Cell{};
}

// Whether the terminal's cursor is not where it should be, as curses has it.
bool cursorMoves()
{
    const Cell cell = cursorCell();
    if (!cell.win)
        return cursorSeen;
    return !cursorSeen || getcury(curscr) != cell.nY || getcurx(curscr) != cell.nX;
}

// Updates the terminal; its cursor goes where the user is, and is seen only while it stands there.
// Curses sends nothing for a cursor that stays as it is.
void send()
{
    const Cell cell = cursorCell();
    const Blocking blocking;
    if (cell.win) {
        leaveok(newscr, FALSE);
        wmove(newscr, cell.nY, cell.nX);
    } else if (cursorSeen) {
        curs_set(0);
    }
    doupdate();
    if (cell.win)
        curs_set(1);
    cursorSeen = cell.win != nullptr;
}

void compose()
{
    if (WINDOW* top = onlyTopTouched()) {
        wnoutrefresh(top);
    } else {
        // Without a panel the panel library does not know the standard screen.
        if (!panel_above(nullptr))
            wnoutrefresh(stdscr);
        update_panels();
    }
}

void update()
{
    if (!stdscr || isendwin())
        return;
    raiseFocused();
    const bool anew = resumed(); // the terminal shows something else now, and no cursor
    forgetResumed();
    if (anew) {
        const Blocking blocking;
        clearok(curscr, TRUE);
        curs_set(0);
    }
    if (anew || anyTouched())
        compose();
    // What was drawn may be what was there before; curses would search the screen for blanks.
    if (anew || is_wintouched(newscr) || is_cleared(newscr) || cursorMoves())
        send();
}

} // namespace

Pass::Pass()
{
    ++nPasses;
}

Pass::~Pass()
{
    if (--nPasses == 0)
        update();
}

Pause::Pause() : nHeld_(nPasses)
{
    nPasses = 0;
    if (!hasKeysAtHand())
        update();
}

Pause::~Pause()
{
    nPasses = nHeld_;
}

OnTop::OnTop(int nChain) : nChain_(nChain), outer_(onTop)
{
    onTop = this;
}

OnTop::~OnTop()
{
    onTop = outer_;
}

void showCursorAt(WINDOW* win, int nY, int nX)
{
    if (isEdition2())
        user = {win, nY, nX};
}

void forgetCursor()
{
    user = {};
}

} // namespace kul
