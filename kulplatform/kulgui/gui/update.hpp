// SPDX-License-Identifier: MIT
//
// The update of the terminal: the cells that differ between what curses has composed (newscr) and
// what the terminal shows (curscr), in the fewest bytes, written at once. Whatever is not common
// goes to doupdate(): terminals that are not ECMA-48, cells that only curses knows how to show, and
// what follows an update by somebody else. Both note what they showed, so that they can take turns
// at any time.
#ifndef KUL_GUI_UPDATE_HPP
#define KUL_GUI_UPDATE_HPP

#include "pen.hpp"

namespace kul {

// Curses has just begun on a terminal, and nobody has updated it.
void beginUpdates();

// Somebody else had the terminal: nothing is known of its cursor and of what letters look like.
void forgetTerminal();

// Says that rows of the screen have moved up, or down for a number below 0. The next update has
// them scrolled where that is cheaper; right or wrong, it shows what was composed.
void expectScroll(int nTop, int nBottom, int nRows);

// The same of rows of a window that is as wide as the screen and lies above all others: moves them
// in the window and in what was composed. The rows that come in have to be drawn; those that come
// from there were not. False, and nothing done, where the terminal would not scroll.
bool scrollPictures(WINDOW* win, int nTop, int nBottom, int nRows);

// Has curses compose the windows that were drawn into.
void compose();

// Updates the terminal and leaves its cursor at a cell of the screen, or anywhere. For a program
// that gets a turn now, and may update the terminal by itself, it is left where curses takes it to
// be instead.
void updateTerminal(Place to, bool forProgram);

// Whether that would move the cursor although nothing has changed.
bool movesCursor(Place to, bool forProgram);

} // namespace kul

#endif
