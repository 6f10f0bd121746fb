// SPDX-License-Identifier: MIT
//
// Which part of a dialog is shown that is larger than the screen. Only screen.cpp asks here.
#ifndef KUL_GUI_VIEW_HPP
#define KUL_GUI_VIEW_HPP

#include "chain.hpp"

namespace kul {

// Where the user is: a cell of a window, in a rectangle that is to be seen with it as far as it
// fits. Without a window, nowhere.
struct User {
    WINDOW* win;
    Cell cell;
    Cell corner;
    int nHeight;
    int nWidth;
};

// Brings what is shown of such dialogs up to date: follows the user as little as possible, or goes
// where a key leads that had no effect. The key is the last one since the last call, 0 for none.
void showParts(const User& user, int nKey);

// What the panel shows of a cell: its window, with the cell changed to that one's. The cell may lie
// outside.
WINDOW* shownAt(WINDOW* win, Cell& cell);

} // namespace kul

#endif
