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

// Of a blank without attributes only the background is seen.
bool isBare(const ScreenCell& cell, const Style& style)
{
    return bareLetterOf(cell) == ' ' && style.attributes == 0;
}

// A letter of one byte, in the first alphabet.
bool isLetter(const ScreenCell& cell)
{
    return bareLetterOf(cell) > ' ' && bareLetterOf(cell) <= '~' && !isLine(cell);
}

bool looksSame(const ScreenCell& one, const ScreenCell& other)
{
    Style style;
    Style styleOther;
    if (isSame(one, other))
        return true;
    if (letterOf(one) != letterOf(other) || !isSameLetter(one, other) || !lookOf(one, style) ||
        !lookOf(other, styleOther))
        return false;
    return style.background == styleOther.background && style.attributes == styleOther.attributes &&
           (style.foreground == styleOther.foreground || isBare(one, style));
}

} // namespace

bool isErasable(const ScreenCell& cell, const Style& style)
{
    return isBare(cell, style) && (codes().erasesInColor || style.background == kDefaultColor);
}

// Finds the first and the last column that differ, most of the others in pieces.
void Painter::findChanges()
{
    constexpr int kPiece = 8;
    const auto isSamePiece = [this](int nX) {
        return std::memcmp(&next_[nX], &seen_[nX], kPiece * sizeof(ScreenCell)) == 0;
    };
    nFirst_ = next_.begin();
    nLast_ = next_.end() - 1;
    while (nFirst_ + kPiece <= nLast_ && isSamePiece(nFirst_))
        nFirst_ += kPiece;
    while (nFirst_ + kPiece <= nLast_ && isSamePiece(nLast_ - kPiece + 1))
        nLast_ -= kPiece;
    while (nLast_ >= nFirst_ && isSame(next_[nLast_], seen_[nLast_]))
        --nLast_;
    while (nFirst_ < nLast_ && isSame(next_[nFirst_], seen_[nFirst_]))
        ++nFirst_;
}

// Of cells that are alike, before and after, one is looked at.
bool Painter::paint()
{
    findChanges();
    for (int x = nFirst_; x <= nLast_;) {
        if (differs(x)) {
            const int nPainted = paintFrom(x);
            if (nPainted == 0)
                return false;
            x += nPainted;
            continue;
        }
        do
            ++x;
        while (x <= nLast_ && isSame(next_[x], next_[x - 1]) && isSame(seen_[x], seen_[x - 1]));
    }
    return true;
}

// The number of the layer that a cell belongs to: of the first with its look, else a new one; the
// one that is due for cells that only curses can show. Mostly that of the cell that was asked for
// before.
int Layers::of(const ScreenCell& cell)
{
    if (isAsked_ && isSameLook(cell, last_) &&
        (bareLetterOf(cell) == ' ') == (bareLetterOf(last_) == ' '))
        return nLast_;
    Style style;
    if (!lookOf(cell, style))
        return nNow_;
    const bool bare = isBare(cell, style);
    int i = 0;
    while (i < nKnown_ && style != styles_[i] &&
           !(bare && styles_[i].attributes == 0 && style.background == styles_[i].background))
        ++i;
    nLast_ = std::min(i, kMost - 1);
    if (nLast_ == nKnown_)
        styles_[nKnown_++] = style;
    nMet_ |= 1U << nLast_;
    isAsked_ = true;
    last_ = cell;
    return nLast_;
}

// How many layers later it is to be painted: 0 for now, below 0 for never or done.
int Painter::layersTo(int nX) const
{
    if (looksSame(next_[nX], seen_[nX]))
        return -1;
    return layers_ ? layers_->of(next_[nX]) - layers_->now() : 0;
}

bool Painter::differs(int nX) const
{
    return (!layers_ && letterOf(next_[nX]) != letterOf(seen_[nX])) || layersTo(nX) == 0;
}

// The column behind the last one before nEnd that differs.
int Painter::lastChange(int nX, int nEnd) const
{
    nEnd = std::min(nEnd, nLast_ + 1);
    while (nEnd > nX && !differs(nEnd - 1))
        --nEnd;
    return nEnd;
}

// Cells from nX on that look the same.
int Painter::runOf(int nX) const
{
    int nEnd = nX + 1;
    while (nEnd < next_.end() && looksSame(next_[nEnd], next_[nX]))
        ++nEnd;
    return nEnd - nX;
}

int Painter::runOfLines(int nX) const
{
    int nEnd = nX;
    while (nEnd < next_.end() && isLine(next_[nEnd]) && differs(nEnd))
        ++nEnd;
    return nEnd - nX;
}

// How a cell is painted. What is not seen is left as it is worn, or as the next letter needs it
// where there is something to change; but a cursor in that colour is to be seen.
bool Painter::styleOf(int nX, Style& style) const
{
    const Style& worn = pen_.style();
    if (!lookOf(next_[nX], style))
        return false;
    if (!isBare(next_[nX], style))
        return true;
    if (style.foreground == style.background ||
        ((worn.foreground ^ style.background) & 2)) // one is light, the other one dark
        style.foreground = worn.foreground;
    return true;
}

// Whether a cell can be written as one byte with all as it is.
bool Painter::isInHand(int nX) const
{
    const ScreenCell& cell = next_[nX];
    Style style;
    return (bareLetterOf(cell) == ' ' || (isLetter(cell) && !pen_.inLines())) &&
           styleOf(nX, style) && style == pen_.style();
}

// Over cells that stay, by writing them once more where no way is shorter, or round them.
void Painter::approach(int nX)
{
    const Place to{nY_, nX};
    const Place from = pen_.place();
    const int nGap = nX - from.nX;
    bool inHand = from.nY == nY_ && from.nX >= next_.begin() && nGap > 0 && nGap <= kLongestGap;
    for (int x = from.nX; inHand && x < nX; ++x)
        inHand = isInHand(x);
    if (!inHand || (nGap > 1 && pen_.moveTo(to, static_cast<std::size_t>(nGap) - 1))) {
        pen_.moveTo(to);
        return;
    }
    for (int x = from.nX; x < nX; ++x) {
        const char byte = static_cast<char>(letterOf(next_[x]));
        pen_.write({&byte, 1}, 1);
    }
}

// Blanks by erasing, where that is shorter than writing them: how many, or 0. What a later layer
// covers may be erased with them.
int Painter::erase(int nX, const Style& style)
{
    if (!isErasable(next_[nX], style))
        return 0;
    int nEnd = nX + 1;
    while (nEnd < next_.end() && (looksSame(next_[nEnd], next_[nX]) || layersTo(nEnd) > 0))
        ++nEnd;
    const int nCount = lastChange(nX, nEnd) - nX;
    if (nEnd == COLS && nCount > 3) {
        pen_.wear(style);
        pen_.eraseRow();
        return nCount;
    }
    const int nCost = nLast_ >= nEnd ? 8 : 4; // with the way to the next cell
    if (!codes().erasesCells || nCount <= nCost)
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
    if (!codes().repeats || nX + kLeast >= next_.end() ||
        !isSame(next_[nX], next_[nX + kLeast - 1]))
        return 0;
    const int nEnd = std::min(nX + runOf(nX), COLS - 1);
    const int nCount = lastChange(nX, nEnd) - nX;
    if (nCount < kLeast)
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
    if (!styleOf(nX, style))
        return 0;
    const int nColumns = nX + 1 < next_.end() && isTail(next_[nX + 1]) ? 2 : 1;
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
    if (bareLetterOf(next_[nX]) == ' ')
        return nColumns + goOnBlank(nX);
    return nColumns + (isLetter(next_[nX]) ? goOn(nX) : 0);
}

// Paints the blanks behind one that could not be had for less: no more can they. Returns how many.
int Painter::goOnBlank(int nX)
{
    int x = nX + 1;
    for (; x < nLast_ && isSame(next_[x], next_[nX]) && differs(x); ++x)
        pen_.write(" ", 1);
    return x - nX - 1;
}

// Paints the letters behind one that look as that does, and blanks between two of them; returns how
// many.
int Painter::goOn(int nX)
{
    char run[64];
    const ScreenCell* next = &next_[nX];
    const auto goesOn = [=, this](int n) {
        return nX + n < nLast_ && isLetter(next[n]) && isSameLook(next[n], *next) &&
               letterOf(next[n]) != letterOf(next[n + 1]) && differs(nX + n);
    };
    int n = 1;
    while (n < 64 && (goesOn(n) || (bareLetterOf(next[n]) == ' ' && isSameLook(next[n], *next) &&
                                    goesOn(n + 1)))) {
        run[n] = static_cast<char>(letterOf(next[n]));
        ++n;
    }
    pen_.write({run + 1, static_cast<std::size_t>(n - 1)}, n - 1);
    return n - 1;
}

} // namespace kul
