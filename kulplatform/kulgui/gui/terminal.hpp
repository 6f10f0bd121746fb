// SPDX-License-Identifier: MIT
//
// What the rooms beside need to know of the terminal.
#ifndef KUL_GUI_TERMINAL_HPP
#define KUL_GUI_TERMINAL_HPP

namespace kul {

// True once after the process was stopped and continued: the screen has to be painted anew.
bool resumed();

} // namespace kul

#endif
