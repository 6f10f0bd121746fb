// SPDX-License-Identifier: MIT
//
// What the rooms beside need to know of the terminal.
#ifndef KUL_GUI_TERMINAL_HPP
#define KUL_GUI_TERMINAL_HPP

namespace kul {

// Brings the screen up to date with a terminal that has changed by itself: repaints it after the
// process was stopped and continued. True when that was so.
//
// Whoever waits for keys calls this before it sleeps, when a signal has interrupted the sleep, and
// once a second at least.
bool lookAtTerminal();

} // namespace kul

#endif
