// SPDX-License-Identifier: MIT
#include "textbox_rows.hpp"

#include <algorithm>

#include "../clamp.hpp"
#include "textbox.hpp"

namespace kul {

TextRows::TextRows(const KULTEXTBOX& box)
    : text_(textOf(box)), nWidth_(std::max(innerSize(box.nWidth, box.nBorder), 1)),
      nHeight_(std::max(innerSize(box.nHeight, box.nBorder), 1)), masked_(isMasked(box)),
      simple_(text_.size() <= kShort && isAscii(text_))
{
}

Letter TextRows::at(int nPlace) const
{
    if (nPlace >= length())
        return {1, 1, {}};
    Letter letter = nextLetter(
        {text_.data() + nPlace, text_.size() - static_cast<std::size_t>(nPlace)}, nWidth_);
    if (masked_)
        letter.nColumns = 1;
    return letter;
}

int TextRows::after(int nPlace) const
{
    return nPlace + static_cast<int>(at(nPlace).nBytes);
}

int TextRows::before(int nPlace, int nFrom) const
{
    int nBefore = nFrom;
    for (int nAt = nFrom; nAt < nPlace; nAt = after(nAt))
        nBefore = nAt;
    return nBefore;
}

std::string_view TextRows::plain(int nFrom, int nTo) const
{
    const char* first = text_.data() + nFrom;
    const char* end = plainEnd(first, text_.data() + nTo);
    // A mark behind the last one is on it.
    if (end > first && end < text_.data() + length() && !isAscii(*end))
        --end;
    return {first, static_cast<std::size_t>(end - first)};
}

// Whether each byte from one place to another is a letter of one column. A mark behind the last one
// would be on it.
bool TextRows::isSimple(int nFrom, int nTo) const
{
    const int nSize = std::min(nTo + 1, length()) - nFrom;
    return simple_ || nSize <= 0 ||
           isAscii({text_.data() + nFrom, static_cast<std::size_t>(nSize)});
}

int TextRows::columns(int nFrom, int nTo, int nMost) const
{
    if (isSimple(nFrom, nTo))
        return std::max(nTo - nFrom, 0);
    int nColumns = 0;
    while (nFrom < nTo && nColumns <= nMost) {
        const Letter letter = at(nFrom);
        nColumns += letter.nColumns;
        nFrom += static_cast<int>(letter.nBytes);
    }
    return nColumns;
}

int TextRows::rowEnd(int nFirst) const
{
    const int nSimple = std::min(shifted(nFirst, nWidth_), length());
    if (isSimple(nFirst, nSimple))
        return nSimple;
    int nLeft = nWidth_;
    while (nFirst < length()) {
        const Letter letter = at(nFirst);
        nLeft -= letter.nColumns;
        if (nLeft < 0)
            break;
        nFirst += static_cast<int>(letter.nBytes);
    }
    return nFirst;
}

// The row that a place is in, counted from the one that begins at nFirst.
TextRows::Row TextRows::rowOf(int nPlace, int nFirst) const
{
    int nEnd = rowEnd(nFirst);
    int nRow = 0;
    for (; nPlace >= nEnd && nEnd < length(); ++nRow) {
        nFirst = nEnd;
        nEnd = rowEnd(nFirst);
    }
    return {nRow, nFirst, nEnd};
}

TextRows::Cell TextRows::cellOf(int nPlace, int nFirst) const
{
    const Row row = rowOf(nPlace, nFirst);
    const int nColumn = columns(row.nFirst, nPlace, nWidth_);
    if (nColumn < nWidth_)
        return {row.nRow, nColumn};
    return row.nRow + 1 < nHeight_ ? Cell{row.nRow + 1, 0} : Cell{row.nRow, nWidth_ - 1};
}

int TextRows::follow(int nFirst, int nCursor) const
{
    nFirst = kul::clamp(nFirst, 0, length());
    return nHeight_ == 1 ? followColumns(nFirst, nCursor) : followRows(nFirst, nCursor);
}

int TextRows::followColumns(int nFirst, int nCursor) const
{
    const int nAtCursor = nCursor < length() ? at(nCursor).nColumns : 0;
    if ((nCursor > nFirst || nFirst == 0) &&
        columns(nFirst, nCursor, nWidth_) + nAtCursor <= nWidth_)
        return nFirst;
    // Half a row stays before the cursor.
    nFirst = nCursor > nFirst ? nFirst : 0;
    const int nKept = std::min(nWidth_ / 2, nWidth_ - nAtCursor);
    for (int nBefore = columns(nFirst, nCursor, INT_MAX); nBefore > nKept;) {
        nBefore -= at(nFirst).nColumns;
        nFirst = after(nFirst);
    }
    return nFirst;
}

// Whether the text from a place on leaves no row of the box empty.
bool TextRows::fills(int nFirst) const
{
    int nRows = 1;
    for (int nEnd = rowEnd(nFirst); nRows < nHeight_ && nEnd < length(); nEnd = rowEnd(nEnd))
        ++nRows;
    return nRows >= nHeight_;
}

int TextRows::followRows(int nFirst, int nCursor) const
{
    if (nCursor < nFirst)
        nFirst = rowOf(nCursor, 0).nFirst;
    int nBelow = rowOf(nCursor, nFirst).nRow - (nHeight_ - 1);
    if (nFirst > 0 && nBelow <= 0 && !fills(nFirst)) {
        nFirst = 0;
        nBelow = rowOf(length(), 0).nRow - (nHeight_ - 1);
    }
    for (; nBelow > 0; --nBelow)
        nFirst = rowEnd(nFirst);
    return nFirst;
}

Rows TextRows::reachable(int nCursor, int nFirst) const
{
    int nFrom = 0;
    int nRow = 0;
    for (int nEnd = rowEnd(nFirst); nRow + 1 < nHeight_ && nEnd < length(); nEnd = rowEnd(nEnd)) {
        ++nRow;
        if (nEnd <= nCursor)
            nFrom = isSimple(nEnd - 1, nEnd) ? nRow : nRow - 1;
    }
    return {nFrom, nRow + 1};
}

int TextRows::moved(int nCursor, int nRows, int nFirst) const
{
    if (nRows > 0 && rowOf(nCursor, nFirst).nEnd == length())
        return nCursor;
    Cell cell = cellOf(nCursor, nFirst);
    if (cell.nRow + nRows < 0) {
        nFirst = 0;
        cell = cellOf(nCursor, 0);
    }
    int nEnd = rowEnd(nFirst);
    for (int nLeft = cell.nRow + nRows; nLeft > 0 && nEnd < length(); --nLeft) {
        nFirst = nEnd;
        nEnd = rowEnd(nFirst);
    }
    int nPlace = nFirst;
    for (int nAt = nFirst; nAt < nEnd; nAt = after(nAt)) {
        cell.nColumn -= at(nAt).nColumns;
        nPlace = nAt;
        if (cell.nColumn < 0)
            return nPlace;
    }
    return nEnd < length() ? nPlace : nEnd;
}

int lettersOf(std::string_view text)
{
    int nLetters = 0;
    for (; !text.empty(); ++nLetters)
        text.remove_prefix(nextLetter(text).nBytes);
    return nLetters;
}

int placeOfLetter(std::string_view text, int nLetter)
{
    std::string_view rest = text;
    for (; nLetter > 0 && !rest.empty(); --nLetter)
        rest.remove_prefix(nextLetter(rest).nBytes);
    return nLetter == 0 ? static_cast<int>(text.size() - rest.size()) : -1;
}

} // namespace kul
