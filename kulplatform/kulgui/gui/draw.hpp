// SPDX-License-Identifier: MIT
//
// Colours and runs of cells, below the public drawing calls. Coordinates are cut to the window
// here, so that any number costs no more than the cells that are drawn.
#ifndef KUL_GUI_DRAW_HPP
#define KUL_GUI_DRAW_HPP

#include <algorithm>
#include <climits>
#include <cstring>
#include <string_view>

#include "../clamp.hpp"
#include "../kulgui.h"
#include "columns.hpp"
#include "find.hpp"

namespace kul {

// A colour set as the attribute of its pair, unmasked: numbers that are no colour set give other
// attributes, as curses has it.
constexpr int rawAttribute(int nColorSet)
{
    return static_cast<int>(static_cast<unsigned>(nColorSet) << 8);
}

// A place moved by a distance, kept within what an int can hold: any number may come in.
constexpr int shifted(int nPlace, long long nDistance)
{
    return static_cast<int>(clamp<long long>(nPlace + nDistance, INT_MIN, INT_MAX));
}

// Switches a colour set on for a window, and off at the end of the scope. What rests is selected in
// a component that has not the focus: it is told from its neighbours.
class Attribute {
public:
    Attribute(WINDOW* win, int nColorSet, bool rests = false);
    ~Attribute();
    Attribute(const Attribute&) = delete;
    Attribute& operator=(const Attribute&) = delete;

private:
    WINDOW* win_;
    attr_t attribute_;
};

// On a terminal without colours, shows one colour set in reverse video: the focus must be seen.
class FocusMark {
public:
    static constexpr int kNone = -1;
    explicit FocusMark(int nColorSet);
    ~FocusMark();
    FocusMark(const FocusMark&) = delete;
    FocusMark& operator=(const FocusMark&) = delete;
};

// While it lives, one colour set shows as another, that of what is disabled; dim on a terminal
// without colours.
class DisabledMark {
public:
    DisabledMark(int nColorSet, int nShownAs);
    ~DisabledMark();
    DisabledMark(const DisabledMark&) = delete;
    DisabledMark& operator=(const DisabledMark&) = delete;
};

// Whether the terminal can show what is disabled neither in a colour nor dim.
bool needsParentheses();

// Rows or columns of a window: the first one, and the one behind the last.
struct Range {
    int nFirst;
    int nEnd;
};

using Rows = Range;

constexpr Range kAll = {INT_MIN, INT_MAX};

constexpr Range joined(Range one, Range other)
{
    return {std::min(one.nFirst, other.nFirst), std::max(one.nEnd, other.nEnd)};
}

// A rectangle of cells.
struct Block {
    Rows rows;
    Range columns;
};

constexpr Block joined(const Block& one, const Block& other)
{
    return {joined(one.rows, other.rows), joined(one.columns, other.columns)};
}

// How far drawing can be held to a part of a window and give the same picture.
enum class Exact {
    Never, // something goes on in the next row: all has to be drawn
    ByRow, // something may leave the columns of what it belongs to
    ByCell,
};

// While it lives, what is drawn into a window changes these cells alone.
class Clip {
public:
    Clip(WINDOW* win, const Block& block);
    ~Clip();
    Clip(const Clip&) = delete;
    Clip& operator=(const Clip&) = delete;

    // What was drawn could be held to that much.
    Exact exact() const;

    // Whether the clip asked no more of it.
    bool isExact() const;
};

// The rows of a window that are drawn now.
Rows rowsDrawn(const WINDOW* win);

// Whether any cell of a block is drawn now, if nothing of what belongs there leaves it.
bool isDrawn(const WINDOW* win, const Block& block);

// Whether a row is drawn now, or one of some.
bool isDrawn(const WINDOW* win, int nY, int nHeight = 1);

// For what goes on in the next row at the right edge of one, and for what may leave the columns of
// its component or takes columns that are not known here.
void drawAcrossRows(const WINDOW* win);
void drawAcrossColumns(const WINDOW* win);

// Draws nCount cells to the right or down; those outside of the window are skipped.
void hRun(WINDOW* win, int nY, int nX, long long nCount, chtype character);
void vRun(WINDOW* win, int nY, int nX, long long nCount, chtype character);

// Blanks, cut to the window as well.
void fillRows(WINDOW* win, int nY, int nX, int nHeight, int nWidth);

// Draws one cell, where the window has it.
void drawCell(WINDOW* win, int nY, int nX, chtype cell);

// Draws plain characters as finished cells, which is far cheaper than to have curses decode them;
// those outside of the window's row are skipped.
void plainRun(WINDOW* win, int nY, int nX, std::string_view text);

// Draws one letter at a place; one that does not lie in the window's row whole is left out. Control
// characters are printed as curses does it.
void drawLetter(WINDOW* win, int nY, int nX, const Letter& letter);

} // namespace kul

#endif
