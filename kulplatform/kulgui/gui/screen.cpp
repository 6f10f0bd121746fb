// SPDX-License-Identifier: MIT
//
// Windows are composed by curses and its panels; this room decides when, and in which order.
#include "screen.hpp"

#include <algorithm>
#include <utility>

#include "chain.hpp"
#include "edition.hpp"
#include "keys.hpp"
#include "line.hpp"
#include "place.hpp"
#include "signals.hpp"
#include "update.hpp"
#include "view.hpp"

namespace kul {

namespace {

int nPasses = 0;
const OnTop* onTop = nullptr;

Turn turn = Turn::Program;
unsigned nChanges = 0;

User user;
bool userTold = false; // by showCursorAt(); else the component alone is known
int nKeyRead = 0;      // since the last update
bool cursorSeen = false;
bool repaintDue = false;
Moved moved; // since the last drawing

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
        raisePanels(panelsOf(*gui));
}

// Whether nothing lies above a window.
bool isOnTop(const WINDOW* win)
{
    PANEL* top = panel_below(nullptr);
    return win == (top ? panel_window(top) : stdscr);
}

// Where the terminal's cursor is to stand; nowhere if the user is not seen.
Place cursorPlace()
{
    if (!userTold || !user.win || !isEdition2())
        return kNowhere;
    Cell cell = user.cell;
    WINDOW* win = shownAt(user.win, cell);
    if (!isOnTop(win) || cell.nY < 0 || cell.nY >= getmaxy(win) || cell.nX < 0 ||
        cell.nX >= getmaxx(win))
        return kNowhere;
    const Place place{getbegy(win) + cell.nY, getbegx(win) + cell.nX};
    return place.nY < LINES && place.nX < COLS ? place : kNowhere;
}

// While the program has a turn the cursor is not hidden: it may be needed again at once.
bool isCursorSeen(Place place)
{
    return place != kNowhere || (cursorSeen && turn == Turn::Program);
}

void showCursor(bool seen)
{
    const Blocking blocking;
    curs_set(seen ? 1 : 0);
    cursorSeen = seen;
}

// Updates the terminal; its cursor goes where the user is, and is seen only while it stands there.
void send(Place place)
{
    const bool seen = isCursorSeen(place);
    if (cursorSeen && !seen)
        showCursor(false);
    updateTerminal(place, turn == Turn::Program);
    if (seen && !cursorSeen)
        showCursor(true);
}

void update()
{
    if (!stdscr || isendwin())
        return;
    const bool anew = takeResumed() || repaintDue; // the terminal shows something else now
    raiseFocused();
    showParts(user, nKeyRead);
    nKeyRead = 0;
    repaintDue = false;
    if (anew) {
        clearok(curscr, TRUE);
        forgetTerminal();
        showCursor(false);
    }
    if (anew || anyTouched()) {
        compose();
        if (moved.nRows != 0) // and perhaps drawn
            moved.nRows = kFar;
    }
    const Place place = cursorPlace();
    // What was drawn may be what was there before.
    if (anew || is_wintouched(newscr) || is_cleared(newscr) || cursorSeen != isCursorSeen(place) ||
        movesCursor(place, turn == Turn::Program))
        send(place);
}

} // namespace

Pass::Pass(End end) : end_(end)
{
    ++nPasses;
}

Pass::~Pass()
{
    if (--nPasses == 0 && end_ == End::Update)
        update();
}

unsigned changes()
{
    return nChanges;
}

void noteChange()
{
    ++nChanges;
}

Pause::Pause(Turn now) : nHeld_(nPasses), before_(turn)
{
    nPasses = 0;
    turn = now;
    if (!hasKeysAtHand() || movesCursor(kNowhere, true))
        update();
    else
        expectScroll(0, 0, 0); // the program may update the terminal by itself
    nCalls_ = nCalls;
}

Pause::~Pause()
{
    if (turn == Turn::Program && (nCalls != nCalls_ || anyTouched()))
        noteChange();
    nPasses = nHeld_;
    turn = before_;
}

OnTop::OnTop(int nChain) : nChain_(nChain), outer_(onTop)
{
    onTop = this;
}

OnTop::~OnTop()
{
    onTop = outer_;
}

void rowsMoved(WINDOW* win, const Block& block, int nRows)
{
    const bool far = moved.nRows == kFar || nRows == kFar;
    const int nBefore = moved.win == win ? moved.nRows : 0;
    moved = {win, block, far ? kFar : nBefore + nRows};
}

Moved scrollMoved(WINDOW* win, bool inParts)
{
    Moved now = std::exchange(moved, {});
    if (now.nRows == 0 || now.win != win)
        return {};
    Cell top{now.block.rows.nFirst, 0};
    Cell bottom{now.block.rows.nEnd, 0};
    WINDOW* shown = shownAt(win, top);
    shownAt(win, bottom);
    const int nFirst = std::max(top.nY, 0);
    const int nLast = std::min({bottom.nY, getmaxy(shown), LINES - getbegy(shown)}) - 1;
    if (nFirst >= nLast)
        return {};
    if (inParts && shown == win && isOnTop(win) && getbegx(win) == 0 && getmaxx(win) == COLS &&
        scrollPictures(win, nFirst, nLast, now.nRows)) {
        now.block.rows = {nFirst, nLast + 1};
        return now;
    }
    expectScroll(getbegy(shown) + nFirst, getbegy(shown) + nLast, now.nRows);
    return {};
}

bool waitsBelow(int nChain)
{
    const OnTop* other = onTop;
    while (other && other->chain() == onTop->chain())
        other = other->outer();
    while (other && other->chain() != nChain)
        other = other->outer();
    return other;
}

void showCursorAt(WINDOW* win, int nY, int nX)
{
    if (user.win != win)
        user = {win, {}, {nY, nX}, 1, 1};
    user.cell = {nY, nX};
    userTold = true;
}

void showComponent(WINDOW* win, int nY, int nX, int nHeight, int nWidth)
{
    user = {win, {nY, nX}, {nY, nX}, nHeight, nWidth};
    userTold = false;
}

void forgetCursor()
{
    user = {};
    userTold = false;
}

void forgetWindow(const WINDOW* win)
{
    if (user.win == win)
        forgetCursor();
}

void noteKey(int nKey)
{
    nKeyRead = nKey;
}

void touchAll()
{
    touchwin(stdscr);
    for (PANEL* panel = panel_above(nullptr); panel; panel = panel_above(panel))
        touchwin(panel_window(panel));
}

void paintAnew()
{
    touchAll();
    repaintDue = true;
}

} // namespace kul
