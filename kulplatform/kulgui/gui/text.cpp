// SPDX-License-Identifier: MIT
//
// Wrapping of texts. A row ends at a newline, or when it is full: the word that it cuts goes to the
// next row, even one that ends with the row, unless the row's last column holds a space. A word
// that fills a row is taken off from its front, an empty row for each character, until the rest
// fits; heights of lists are reckoned by these rows.
//
//     "two words", 6 columns     "two words", 4 columns
//     two                        two_       the space fills the row
//     words                                 w
//                                           o
//                                rds
#include "text.hpp"

#include <algorithm>
#include <climits>
#include <cstring>

#include "draw.hpp"

namespace {

bool isWordOrEnd(char character)
{
    return (character > ' ' && character <= '~') || character == '\0' || character == '\n';
}

bool isBlank(char character)
{
    return character == ' ' || character == '\0';
}

// The character at a place; the terminator outside of the text.
char at(std::string_view text, long long nPlace)
{
    const bool inside = nPlace >= 0 && nPlace < static_cast<long long>(text.size());
    return inside ? text.data()[nPlace] : '\0';
}

// Swaps in the first nCount characters.
void swapFirst(char* str, std::size_t nCount, char this_char, char that_char)
{
    std::replace(str, str + nCount, this_char, that_char);
}

} // namespace

namespace kul {

RowWalk::RowWalk(const char* szText, int nWidth)
    : row_(nWidth > 0 ? szText : nullptr), ahead_(row_), space_(row_), width_(nWidth)
{
}

std::optional<std::string_view> RowWalk::next()
{
    if (!row_)
        return std::nullopt;
    for (; ahead_ - row_ < width_ && *ahead_ != '\n' && *ahead_ != '\0'; ++ahead_)
        space_ = *ahead_ == ' ' ? ahead_ : space_;
    const char* start = row_;
    const char* end = start;
    if (ahead_ - start < width_) { // the line ends here
        end = ahead_;
        row_ = *end == '\0' ? nullptr : ++ahead_;
    } else if (ahead_[-1] == ' ') {
        end = ahead_;
        row_ = end;
    } else if (space_ > start) { // a word is cut: it goes to the next row
        end = space_;
        row_ = end + 1;
    } else {
        ++row_;
    }
    return std::string_view(start, static_cast<std::size_t>(end - start));
}

void drawText(WINDOW* win, int nY, int nX, std::string_view text)
{
    const char* cells = text.data();
    const long long last =
        std::min(static_cast<long long>(text.size()), getmaxx(win) - static_cast<long long>(nX));
    for (long long first = std::max(0LL, -static_cast<long long>(nX)); first < last;) {
        long long end = first + 1;
        while (isPlain(cells[first]) && end < last && isPlain(cells[end]))
            ++end;
        const std::string_view run(cells + first, static_cast<std::size_t>(end - first));
        if (isPlain(run.front()))
            plainRun(win, nY, static_cast<int>(nX + first), run);
        else
            mvwaddnstr(win, nY, static_cast<int>(nX + first), run.data(), 1);
        first = end;
    }
}

void printOnRow(WINDOW* win, int nY, int nX, const char* szText)
{
    if (wmove(win, nY, nX) == ERR)
        return;
    // Byte by byte, for only curses knows how many cells they take. Past the last cell of the row
    // the cursor is in the next one, and below the last row there is an error.
    while (*szText != '\0' && getcury(win) == nY) {
        if (waddch(win, static_cast<unsigned char>(*szText++)) == ERR)
            return;
    }
}

std::string_view viewOf(const char* szText)
{
    return szText ? std::string_view(szText, static_cast<std::size_t>(length(szText)))
                  : std::string_view();
}

int lineStart(std::string_view text, int nStart, int nLength)
{
    const long long end = static_cast<long long>(nStart) + nLength;
    long long place = nStart;
    while (place < end && at(text, place) == ' ')
        ++place;
    return place < end ? static_cast<int>(place) : nStart;
}

int lineEnd(std::string_view text, int nStart, int nLength)
{
    const long long size = static_cast<long long>(text.size());
    if (size < nLength)
        return static_cast<int>(size - 1);
    if (size < nStart || nStart < 0)
        return -1;
    if (size < static_cast<long long>(nStart) + nLength)
        return static_cast<int>(size - 1);
    int nEnd = shifted(nStart, nLength - 1LL);
    if (nEnd <= nStart)
        return nEnd;
    const char* cells = text.data();
    const void* newline =
        std::memchr(cells + nStart, '\n', static_cast<std::size_t>(nEnd - nStart));
    if (newline)
        return static_cast<int>(static_cast<const char*>(newline) - cells);
    if (at(text, nEnd + 1LL) != ' ') {
        while (nEnd > nStart && isWordOrEnd(cells[nEnd]))
            --nEnd;
    } else if (isBlank(cells[nEnd])) {
        do {
            --nEnd;
        } while (nEnd > nStart && isBlank(cells[nEnd]));
    }
    return nEnd;
}

} // namespace kul

int WrapText(WINDOW* win, int nXPos, int nYPos, int nWidth, int nColor, const char* szText)
{
    const kul::Attribute color(win, nColor);
    int nRows = 0;
    for (kul::RowWalk walk(szText, nWidth); const auto row = walk.next();) {
        kul::drawText(win, kul::shifted(nYPos, nRows), nXPos, *row);
        nRows = kul::shifted(nRows, 1);
    }
    return nRows;
}

void NewStrToBox(WINDOW* win, int nXPos, int nYPos, int nWidth, int nHeight, int nColor, int,
                 const char* szText)
{
    const kul::Attribute color(win, nColor);
    // Rows below the window would show nothing.
    const long long nBelow = getmaxy(win) - static_cast<long long>(nYPos);
    const long long nRows = std::min<long long>(nHeight, nBelow);
    kul::RowWalk walk(szText, nWidth);
    for (int nRow = 0; nRow < nRows; ++nRow) {
        const auto row = walk.next();
        if (!row)
            break;
        kul::drawText(win, nYPos + nRow, nXPos, *row);
    }
}

int GetWrapTextHeight(int nWidth, const char* szText)
{
    int nRows = 0;
    for (kul::RowWalk walk(szText, nWidth); walk.next();)
        nRows = kul::shifted(nRows, 1);
    return nRows;
}

// Its answer is null in any case, so the file is left alone: it may be one that never ends.
TEXTLINE* GenerateWrapMarks(const char*, int, int)
{
    return nullptr;
}

int ReturnLineStart(const char* szText, int nStart, int nLength)
{
    return kul::lineStart(kul::viewOf(szText), nStart, nLength);
}

int ReturnLineEnd(const char* szText, int nStart, int nLength)
{
    return kul::lineEnd(kul::viewOf(szText), nStart, nLength);
}

int ReturnEOLPosition(const char* szText, int nStart, int nLength)
{
    const std::string_view text = kul::viewOf(szText);
    if (nStart < 0 || static_cast<std::size_t>(nStart) >= text.size())
        return -1;
    const std::size_t newline = text.find('\n', static_cast<std::size_t>(nStart));
    if (newline == text.npos || static_cast<int>(newline) > nLength)
        return -1;
    return static_cast<int>(newline) - nStart;
}

void SwapChar(char* str, char this_char, char that_char)
{
    if (str)
        swapFirst(str, std::strlen(str) + 1, this_char, that_char);
}

void SwapnChar(char* str, char this_char, char that_char, int nLength)
{
    if (str && nLength >= 0)
        swapFirst(str, std::min(static_cast<std::size_t>(nLength), std::strlen(str)) + 1, this_char,
                  that_char);
}

void CopyStrWithoutEOS(char* szDest, const char* szSrc, int nLength)
{
    if (szDest && szSrc && nLength > 0)
        std::memmove(szDest, szSrc, strnlen(szSrc, static_cast<std::size_t>(nLength)));
}
