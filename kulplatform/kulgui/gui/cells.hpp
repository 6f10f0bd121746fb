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

// Columns of a row; none if the last one is lower.
struct Columns {
    int nFirst;
    int nLast;
};

// Some columns of a row of a window that is as wide as the screen. There are never more than two at
// a time.
class ScreenRow {
public:
    // Room for a row of the screen as it is now, of which these columns are read; false without
    // memory.
    bool prepare(Columns columns);
    int begin() const { return columns_.nFirst; }
    int end() const { return columns_.nLast + 1; }

    // False where the row cannot be told, half of a wide letter being missing for instance.
    bool read(WINDOW* win, int nY);
    void fill(const ScreenCell& cell);

    const ScreenCell& operator[](int nX) const { return cells_[nX]; }

private:
    bool readEach(WINDOW* win, int nY);

    ScreenCell* cells_ = nullptr;
    Columns columns_{};
    int nRoom_ = 0;
};

// As curses has it for a screen with nothing on it.
ScreenCell blankCell();

// The letter's code; 0 for one that curses does not know.
inline wchar_t letterOf(const ScreenCell& cell)
{
#if NCURSES_WIDECHAR
    return cell.chars[0];
#else
    return static_cast<wchar_t>(cell & A_CHARTEXT);
#endif
}

// The same, 0 with marks on it as well.
inline wchar_t bareLetterOf(const ScreenCell& cell)
{
#if NCURSES_WIDECHAR
    if (cell.chars[1] != 0)
        return 0;
#endif
    return letterOf(cell);
}

// The same letter, whatever it looks like.
bool isSameLetter(const ScreenCell& one, const ScreenCell& other);

// Exactly the same for curses.
inline bool isSame(const ScreenCell& one, const ScreenCell& other)
{
#if NCURSES_WIDECHAR
    return one.attr == other.attr && one.ext_color == other.ext_color &&
           one.chars[0] == other.chars[0] && one.chars[1] == other.chars[1] &&
           (one.chars[1] == 0 || isSameLetter(one, other));
#else
    return one == other;
#endif
}

// The same attributes and colours, whatever the letter.
inline bool isSameLook(const ScreenCell& one, const ScreenCell& other)
{
#if NCURSES_WIDECHAR
    return one.attr == other.attr && one.ext_color == other.ext_color;
#else
    return ((one ^ other) & ~A_CHARTEXT) == 0;
#endif
}

// The second half of a wide letter.
bool isTail(const ScreenCell& cell);

// Whether its letter is one of the second alphabet.
bool isLine(const ScreenCell& cell);

// How a cell looks; false where only curses knows.
bool lookOf(const ScreenCell& cell, Style& style);

// Before an update: the program may have changed the colours of pairs.
void forgetLooks();

// The bytes of a letter of the first alphabet, 0 if it cannot be written.
constexpr int kMostBytes = 40;
int bytesOf(const ScreenCell& cell, char (&bytes)[kMostBytes]);

} // namespace kul

#endif
