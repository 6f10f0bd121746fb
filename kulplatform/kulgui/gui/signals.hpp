// SPDX-License-Identifier: MIT
//
// What signals do while the terminal is open. Only those that the program has left to their
// defaults are taken; the others are its own business.
#ifndef KUL_GUI_SIGNALS_HPP
#define KUL_GUI_SIGNALS_HPP

namespace kul {

// Notes which signals the program leaves to us; to be asked before curses takes some for itself.
void findSignals();

// Takes them for this process, and gives them back.
void takeSignals();
void giveBackSignals();

// Whether this process took them last. A child that was forked has its parent's handlers, but the
// terminal is not the child's to give back.
bool isOwner();

// Whether the process was stopped and continued since this was last taken: the terminal shows
// something else now.
bool resumed();
bool takeResumed();

// Whether the terminal was told to have another size; forgets it.
bool takeSizeSignal();

} // namespace kul

#endif
