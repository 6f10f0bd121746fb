// SPDX-License-Identifier: MIT
//
// Rows of the screen as curses keeps them, cell by cell, and how a cell looks on the terminal.
#ifndef KUL_GUI_CELLS_HPP
#define KUL_GUI_CELLS_HPP

#include "../kulgui.h"
#include "pen.hpp"

namespace kul {

#if NCURSES_WIDECHAR
using ScreenCell = cchar_t;
#else
using ScreenCell = chtype;
#endif

// The row of a window, as wide as the screen. There are never more than two at a time.
class ScreenRow {
public:
    // Room for a row of the screen as it is now; false without memory.
    bool prepare();

    // False where the row cannot be told, half of a wide letter being missing for instance.
    bool read(WINDOW* win, int nY);
    void fill(const ScreenCell& cell);

    const ScreenCell& operator[](int nX) const { return cells_[nX]; }

private:
    bool readEach(WINDOW* win, int nY);

    ScreenCell* cells_ = nullptr;
    int nRoom_ = 0;
};

// As curses has it for a screen with nothing on it.
ScreenCell blankCell();

// Exactly the same for curses.
bool isSame(const ScreenCell& one, const ScreenCell& other);

// The second half of a wide letter.
bool isTail(const ScreenCell& cell);

// The letter's code; 0 for one that curses does not know.
wchar_t letterOf(const ScreenCell& cell);

// Whether its letter is one of the second alphabet.
bool isLine(const ScreenCell& cell);

// The same letter, whatever it looks like.
bool isSameLetter(const ScreenCell& one, const ScreenCell& other);

// How a cell looks; false where only curses knows.
bool lookOf(const ScreenCell& cell, Style& style);

// The bytes of a letter of the first alphabet, 0 if it cannot be written.
constexpr int kMostBytes = 40;
int bytesOf(const ScreenCell& cell, char (&bytes)[kMostBytes]);

} // namespace kul

#endif
