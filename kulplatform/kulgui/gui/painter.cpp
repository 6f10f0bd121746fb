// SPDX-License-Identifier: MIT
//
// Cells that look the same need not be painted, even where curses has them in different colours: a
// terminal may show none.
#include "painter.hpp"

#include <algorithm>
#include <cstring>
#include <cwchar>

namespace kul {

namespace {

constexpr int kLongestGap = 8; // of cells that may be written once more on the way to the next one

int digits(int n)
{
    return n < 10 ? 1 : n < 100 ? 2 : 3;
}

} // namespace

bool isErasable(const ScreenCell& cell, const Style& style)
{
    return letterOf(cell) == ' ' && style.attributes == 0 &&
           (codes().erasesInColor || style.background == kDefaultColor);
}

bool Painter::paint()
{
    nLast_ = COLS - 1;
    while (nLast_ >= 0 && isSame(next_[nLast_], seen_[nLast_]))
        --nLast_;
    while (nFirst_ < nLast_ && isSame(next_[nFirst_], seen_[nFirst_]))
        ++nFirst_;
    for (int x = nFirst_; x <= nLast_;) {
        if (!differs(x)) {
            ++x;
            continue;
        }
        const int nPainted = paintFrom(x);
        if (nPainted == 0)
            return false;
        x += nPainted;
    }
    return true;
}

bool Painter::differs(int nX) const
{
    const ScreenCell& one = next_[nX];
    const ScreenCell& other = seen_[nX];
    Style style;
    Style styleOther;
    if (isSame(one, other))
        return false;
    return !isSameLetter(one, other) || !lookOf(one, style) || !lookOf(other, styleOther) ||
           style != styleOther;
}

// The column behind the last one before nEnd that differs.
int Painter::lastChange(int nX, int nEnd) const
{
    nEnd = std::min(nEnd, nLast_ + 1);
    while (nEnd > nX && !differs(nEnd - 1))
        --nEnd;
    return nEnd;
}

// Cells from nX on that are the same.
int Painter::runOf(int nX) const
{
    int nEnd = nX + 1;
    while (nEnd < COLS && isSame(next_[nEnd], next_[nX]))
        ++nEnd;
    return nEnd - nX;
}

int Painter::runOfLines(int nX) const
{
    int nEnd = nX;
    while (nEnd < COLS && isLine(next_[nEnd]) && differs(nEnd))
        ++nEnd;
    return nEnd - nX;
}

// Whether a cell can be written as one byte with all as it is.
bool Painter::isInHand(int nX) const
{
    const ScreenCell& cell = next_[nX];
    const wchar_t letter = letterOf(cell);
    Style style;
    return letter >= ' ' && letter <= '~' && !isLine(cell) && (letter == ' ' || !pen_.inLines()) &&
           lookOf(cell, style) && style == pen_.style();
}

// Over cells that stay, by writing them once more where that is shorter, or round them.
void Painter::approach(int nX)
{
    const Place to{nY_, nX};
    const Place from = pen_.place();
    const int nGap = nX - from.nX;
    bool inHand = from.nY == nY_ && nGap > 0 && nGap <= kLongestGap;
    for (int x = from.nX; inHand && x < nX; ++x)
        inHand = isInHand(x);
    if (!inHand || static_cast<std::size_t>(nGap) >= pen_.distance(to)) {
        pen_.moveTo(to);
        return;
    }
    for (int x = from.nX; x < nX; ++x) {
        const char byte = static_cast<char>(letterOf(next_[x]));
        pen_.write({&byte, 1}, 1);
    }
}

// Blanks by erasing, where that is shorter than writing them: how many, or 0.
int Painter::erase(int nX, const Style& style)
{
    if (!isErasable(next_[nX], style))
        return 0;
    const int nEnd = nX + runOf(nX);
    const int nCount = lastChange(nX, nEnd) - nX;
    if (nEnd == COLS && nCount > 3) {
        pen_.wear(style);
        pen_.eraseRow();
        return nCount;
    }
    const int nBack = nLast_ >= nEnd ? 3 + digits(nCount) : 0;
    if (!codes().erasesCells || nCount <= 3 + digits(nCount) + nBack)
        return 0;
    pen_.wear(style);
    pen_.eraseCells(nCount);
    return nCount;
}

// The same letter several times by a code, where that is shorter: how many, or 0. The last column
// is left out, behind which terminals differ.
int Painter::repeat(int nX, char letter)
{
    constexpr int kLeast = 6;
    if (!codes().repeats || nX + kLeast >= COLS || !isSame(next_[nX], next_[nX + kLeast - 1]))
        return 0;
    const int nEnd = std::min(nX + runOf(nX), COLS - 1);
    const int nCount = lastChange(nX, nEnd) - nX;
    if (nCount <= 4 + digits(nCount - 1))
        return 0;
    pen_.repeat(letter, nCount);
    return nCount;
}

// A letter of the second alphabet, or the character for it where that is shorter.
int Painter::lineLetter(int nX, char (&bytes)[kMostBytes])
{
    const wchar_t letter = letterOf(next_[nX]);
    if (letter <= 0 || letter >= kLetters || !codes().lineBytes[letter])
        return 0;
#if NCURSES_WIDECHAR
    const int nRun = codes().glyphs && !pen_.inLines() ? runOfLines(nX) : 0;
    const int nSwitch =
        static_cast<int>(std::strlen(codes().linesOn) + std::strlen(codes().linesOff));
    if (codes().glyphsOnly || (nRun > 0 && 3 * nRun <= nSwitch + nRun)) {
        std::mbstate_t state{};
        const std::size_t n = std::wcrtomb(bytes, NCURSES_WACS(letter)->chars[0], &state);
        pen_.useLines(false);
        return n <= 8 ? static_cast<int>(n) : 0;
    }
#endif
    pen_.useLines(true);
    bytes[0] = codes().lineBytes[letter];
    return 1;
}

// Makes the alphabet ready for a letter and gives its bytes; 0 for none.
int Painter::letter(int nX, char (&bytes)[kMostBytes])
{
    const ScreenCell& cell = next_[nX];
    if (isLine(cell))
        return lineLetter(nX, bytes);
    if (letterOf(cell) != ' ')
        pen_.useLines(false);
    return bytesOf(cell, bytes);
}

// Paints one cell or more; 0 where only curses can.
int Painter::paintFrom(int nX)
{
    Style style;
    if (isTail(next_[nX]))
        return paintFrom(nX - 1) - 1;
    if (!lookOf(next_[nX], style))
        return 0;
    const int nColumns = nX + 1 < COLS && isTail(next_[nX + 1]) ? 2 : 1;
    approach(nX);
    if (const int nErased = erase(nX, style))
        return nErased;
    // A letter in the last cell of all would make some terminals scroll.
    if (!codes().waitsAtEdge && nY_ == LINES - 1 && nX + nColumns == COLS)
        return 0;
    pen_.wear(style);
    char bytes[kMostBytes];
    const int nBytes = letter(nX, bytes);
    if (nBytes == 0)
        return 0;
    if (const int nRepeated = nBytes == 1 ? repeat(nX, bytes[0]) : 0)
        return nRepeated;
    pen_.write({bytes, static_cast<std::size_t>(nBytes)}, nColumns);
    return nColumns;
}

} // namespace kul
