// SPDX-License-Identifier: MIT
//
// Curses gives a row without the second halves of its wide letters. Rows with such letters, and
// those with cells that were declared unknown, are read cell by cell.
#include "cells.hpp"

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <cwchar>
#include <iterator>
#include <utility>

namespace kul {

namespace {

constexpr attr_t kCommonAttributes = A_STANDOUT | A_UNDERLINE | A_REVERSE | A_BLINK | A_DIM |
                                     A_BOLD | A_ALTCHARSET | A_INVIS | A_PROTECT | A_ITALIC |
                                     A_COLOR | A_CHARTEXT;
static_assert(A_STANDOUT == 1U << 16 && A_BOLD == 1U << 21 && A_INVIS == 1U << 23 &&
              A_PROTECT == 1U << 24 && A_ITALIC == 1U << 31);

// How cells look that were asked for in this update: there are few looks in a row.
struct Look {
    attr_t attributes;
    int nPair;
    Style style;
    bool known;
    bool shown;
};
constexpr unsigned kLooks = 16;
Look looks[kLooks];

// In the order of Codes.
unsigned numbered(attr_t attributes)
{
    return (attributes >> 16 & 0x3f) | (attributes >> 17 & 0xc0) | (attributes >> 23 & 0x100);
}

// Attributes that do not go together with colours are left out; reverse video is had by swapping
// the colours.
void dropAttributes(Style& style)
{
    const unsigned nDropped = style.attributes & codes().attributesWithoutColor;
    if (nDropped & kReverse)
        std::swap(style.foreground, style.background);
    style.attributes &= ~nDropped;
}

// Colours of a pair as the terminal numbers them; false for those that it has no code for. Pair 0
// has colours as well, unless the program has asked for the terminal's own.
bool colorsOf(int nPair, Style& style)
{
    if (COLOR_PAIRS <= 0)
        return true;
    if (nPair > SHRT_MAX ||
        pair_content(static_cast<short>(nPair), &style.foreground, &style.background) != OK)
        return false;
    dropAttributes(style);
    return style.foreground >= kDefaultColor && style.foreground < codes().nColors &&
           style.background >= kDefaultColor && style.background < codes().nColors;
}

#if NCURSES_WIDECHAR

void blankOut(ScreenCell& cell)
{
    std::fill(std::begin(cell.chars), std::end(cell.chars), L'\0');
    cell.chars[0] = ' ';
    cell.attr &= ~A_CHARTEXT;
}

// Of what they may have the other half.
Columns withNeighbours(const Columns& columns)
{
    return {std::max(columns.nFirst - 1, 0), std::min(columns.nLast + 1, COLS - 1)};
}

constexpr wchar_t kFirstWide = 0x1100; // no letter before it takes two columns

attr_t attributesOf(const ScreenCell& cell)
{
    return cell.attr;
}

int pairOf(const ScreenCell& cell)
{
    return cell.ext_color;
}

#else

attr_t attributesOf(const ScreenCell& cell)
{
    return cell;
}

int pairOf(const ScreenCell& cell)
{
    return PAIR_NUMBER(cell);
}

#endif

} // namespace

bool ScreenRow::prepare(Columns columns)
{
    columns_ = columns;
    if (nRoom_ > COLS)
        return true;
    void* cells = std::realloc(cells_, (static_cast<std::size_t>(COLS) + 1) * sizeof *cells_);
    if (!cells)
        return false;
    cells_ = static_cast<ScreenCell*>(cells);
    nRoom_ = COLS + 1;
    return true;
}

void ScreenRow::fill(const ScreenCell& cell)
{
    std::fill_n(cells_, COLS, cell);
}

#if NCURSES_WIDECHAR

ScreenCell blankCell()
{
    ScreenCell cell{};
    cell.chars[0] = ' ';
    return cell;
}

bool ScreenRow::read(WINDOW* win, int nY)
{
    const Columns read = withNeighbours(columns_);
    ScreenCell* first = cells_ + read.nFirst;
    const int nCount = read.nLast - read.nFirst + 1;
    if (mvwin_wchnstr(win, nY, read.nFirst, first, nCount) == ERR)
        return false;
    const bool narrow = std::all_of(first, first + nCount, [](const ScreenCell& cell) {
        return cell.chars[0] > 0 && cell.chars[0] < kFirstWide;
    });
    return narrow || readEach(win, nY);
}

// Where a letter was drawn over half of a wide one, or a window covers it, the half that is left is
// shown as a blank.
bool ScreenRow::readEach(WINDOW* win, int nY)
{
    const auto [nFirst, nLast] = withNeighbours(columns_);
    for (int x = nFirst; x <= nLast; ++x) {
        if (mvwin_wch(win, nY, x, &cells_[x]) == ERR)
            return false;
    }
    for (int x = nFirst; x <= nLast; ++x) {
        const bool wide = letterOf(cells_[x]) >= kFirstWide && wcwidth(letterOf(cells_[x])) == 2;
        const bool whole = x < nLast && !isTail(cells_[x]) && isTail(cells_[x + 1]);
        if (wide && whole)
            ++x;
        else if (wide || isTail(cells_[x]))
            blankOut(cells_[x]);
    }
    return true;
}

bool isSameLetter(const ScreenCell& one, const ScreenCell& other)
{
    return one.chars[0] == other.chars[0] && one.chars[1] == other.chars[1] &&
           (one.chars[1] == 0 || std::wcsncmp(one.chars, other.chars, CCHARW_MAX) == 0) &&
           ((one.attr ^ other.attr) & (A_ALTCHARSET | A_CHARTEXT)) == 0;
}

// Curses marks the columns of a wide letter by numbers from 1 on.
bool isTail(const ScreenCell& cell)
{
    return (cell.attr & A_CHARTEXT) > 1;
}

int bytesOf(const ScreenCell& cell, char (&bytes)[kMostBytes])
{
    int nBytes = 0;
    std::mbstate_t state{};
    for (int i = 0; i < CCHARW_MAX && cell.chars[i]; ++i) {
        const wchar_t letter = cell.chars[i];
        if (letter < ' ' || (letter >= 0x7f && letter < 0xa0) || nBytes + 8 > kMostBytes)
            return 0;
        if (letter < kLetters) {
            bytes[nBytes++] = static_cast<char>(letter);
            continue;
        }
        const std::size_t n = std::wcrtomb(bytes + nBytes, letter, &state);
        if (n > 8)
            return 0;
        nBytes += static_cast<int>(n);
    }
    return nBytes;
}

#else

ScreenCell blankCell()
{
    return ' ';
}

bool ScreenRow::read(WINDOW* win, int nY)
{
    return mvwinchnstr(win, nY, begin(), cells_ + begin(), end() - begin()) != ERR;
}

bool isSameLetter(const ScreenCell& one, const ScreenCell& other)
{
    return ((one ^ other) & (A_ALTCHARSET | A_CHARTEXT)) == 0;
}

bool isTail(const ScreenCell&)
{
    return false;
}

int bytesOf(const ScreenCell& cell, char (&bytes)[kMostBytes])
{
    const wchar_t letter = letterOf(cell);
    bytes[0] = static_cast<char>(letter);
    return letter < ' ' || (letter >= 0x7f && letter < 0xa0) ? 0 : 1;
}

#endif

bool isLine(const ScreenCell& cell)
{
    return attributesOf(cell) & A_ALTCHARSET && letterOf(cell) != ' ';
}

bool lookOf(const ScreenCell& cell, Style& style)
{
    const attr_t attributes = attributesOf(cell) & ~static_cast<attr_t>(A_CHARTEXT | A_ALTCHARSET);
    const int nPair = pairOf(cell);
    Look& look = looks[(static_cast<unsigned>(nPair) ^ attributes >> 17) % kLooks];
    if (!look.known || look.attributes != attributes || look.nPair != nPair) {
        look = {attributes, nPair, {}, true, false};
        look.style.attributes = numbered(attributes);
        look.shown = !(attributes & ~kCommonAttributes) && colorsOf(nPair, look.style);
    }
    style = look.style;
    return look.shown;
}

void forgetLooks()
{
    for (Look& look : looks)
        look.known = false;
}

} // namespace kul
