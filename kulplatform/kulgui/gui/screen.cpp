// SPDX-License-Identifier: MIT
//
// Windows are composed by curses and its panels; this room decides when, and in which order.
#include "screen.hpp"

#include "chain.hpp"
#include "frame.hpp"
#include "line.hpp"
#include "signals.hpp"

namespace kul {

namespace {

int nPasses = 0;
const OnTop* onTop = nullptr;

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

void update()
{
    if (!stdscr || isendwin())
        return;
    raiseFocused();
    const bool anew = resumed(); // the terminal shows something else now
    forgetResumed();
    if (anew)
        clearok(curscr, TRUE);
    else if (!anyTouched())
        return;
    if (WINDOW* top = onlyTopTouched()) {
        wnoutrefresh(top);
    } else {
        // Without a panel the panel library does not know the standard screen.
        if (!panel_above(nullptr))
            wnoutrefresh(stdscr);
        update_panels();
    }
    // What was drawn may be what was there before; curses would search the screen for blanks.
    if (!anew && !is_wintouched(newscr) && !is_cleared(newscr))
        return;
    const Blocking blocking;
    doupdate();
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

} // namespace kul
