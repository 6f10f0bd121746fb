// SPDX-License-Identifier: MIT
//
// Wrapping of texts. A row ends at a newline, or when it is full: the word that it cuts goes to the
// next row, even one that ends with the row, unless the row's last column holds a space. A word
// that fills a row is taken off from its front, an empty row for each character, until the rest
// fits; heights of lists are reckoned by these rows.
//
//     "two words", 6 columns     "two words", 4 columns     "zwei Wörter", 4 columns
//     two                        two_                       zwei
//     words                                 w               Wört
//                                           o               er
//                                rds
//
// A word with a letter beyond ASCII is not taken apart so: it breaks between letters, and all of it
// is shown.
#include "text.hpp"

#include <algorithm>
#include <climits>
#include <clocale>
#include <cstring>

#include "../clamp.hpp"
#include "columns.hpp"
#include "edition.hpp"
#include "print.hpp"

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

// The bytes of a line of nLength columns, if it is all in ASCII, and the one behind.
std::string_view lookedAt(std::string_view text, int nStart, int nLength)
{
    const auto nFirst = static_cast<std::size_t>(nStart);
    const std::size_t nMost = static_cast<std::size_t>(std::max(nLength, 0)) + 1;
    return {text.data() + nFirst, std::min(text.size() - nFirst, nMost)};
}

// Bytes of a line of nLength columns, or one more than the rest of the text has if that is shorter.
int lineBytes(std::string_view text, int nStart, int nLength)
{
    const std::string_view rest(text.data() + nStart,
                                text.size() - static_cast<std::size_t>(nStart));
    const std::string_view line = kul::fitting(rest, nLength);
    const bool isShorter = line.size() == rest.size() && kul::columnsOf(line) < nLength;
    return static_cast<int>(line.size()) + (isShorter ? 1 : 0);
}

// Whether the word at a place has a letter beyond ASCII, and is not bytes.
bool isBroken(std::string_view text, int nPlace)
{
    if (!kul::countsColumns())
        return false;
    const auto isLetter = [=](long long nAt) {
        return at(text, nAt) > ' ' || !kul::isAscii(at(text, nAt));
    };
    long long first = nPlace;
    long long end = nPlace;
    while (isLetter(first - 1))
        --first;
    while (isLetter(end))
        ++end;
    return !kul::isAscii({text.data() + first, static_cast<std::size_t>(end - first)});
}

} // namespace

namespace kul {

RowWalk::RowWalk(const char* szText, int nWidth)
    : row_(nWidth > 0 ? szText : nullptr), ahead_(row_), space_(row_), width_(nWidth), surplus_(0),
      end_(nullptr), wordEnd_(row_), wordBroken_(false)
{
}

// Takes the character ahead that is no plain one: a letter, or the marks on the one before. False
// when there is no room for it in the row.
bool RowWalk::takeOther(bool full)
{
    if (isAscii(*ahead_) || !countsColumns()) {
        ahead_ += full ? 0 : 1;
        return !full;
    }
    if (!end_)
        end_ = ahead_ + std::strlen(ahead_);
    const std::string_view rest(ahead_, static_cast<std::size_t>(end_ - ahead_));
    const bool onLetter = ahead_ > row_ && isWordOrEnd(ahead_[-1]);
    const auto nMarks = static_cast<std::ptrdiff_t>(onLetter ? marksAt(rest) : 0);
    if (nMarks > 0) {
        ahead_ += nMarks;
        surplus_ += nMarks;
        return true;
    }
    const Letter letter = nextLetter(rest, static_cast<int>(width_));
    if (ahead_ - row_ - surplus_ + letter.nColumns > width_)
        return false;
    ahead_ += letter.nBytes;
    surplus_ += static_cast<std::ptrdiff_t>(letter.nBytes) - letter.nColumns;
    return true;
}

// Whether the word that fills the row has a letter beyond ASCII, wherever.
bool RowWalk::isBrokenWord()
{
    if (row_ >= wordEnd_) {
        wordBroken_ = false;
        wordEnd_ = row_ + 1; // it may be a space
        for (; !isBlank(*wordEnd_) && *wordEnd_ != '\n'; ++wordEnd_)
            wordBroken_ = wordBroken_ || !isAscii(*wordEnd_);
        wordBroken_ = (wordBroken_ || !isAscii(*row_)) && countsColumns();
    }
    return wordBroken_;
}

// Looks ahead to the end of the row. Whether the row is full, and not the line at its end.
inline bool RowWalk::fill()
{
    while (true) {
        const char* ahead = ahead_;
        const char* space = space_;
        std::ptrdiff_t room = width_ + surplus_ - (ahead - row_);
        for (; room > 0 && static_cast<signed char>(*ahead) > '\n'; ++ahead, --room)
            space = *ahead == ' ' ? ahead : space;
        ahead_ = ahead;
        space_ = space;
        const bool full = room <= 0;
        if (full ? isAscii(*ahead) : *ahead == '\n' || *ahead == '\0')
            return full;
        if (!takeOther(full))
            return true;
    }
}

std::optional<std::string_view> RowWalk::next()
{
    if (!row_)
        return std::nullopt;
    const char* start = row_;
    const char* end = start;
    if (!fill()) { // the line ends here
        end = ahead_;
        row_ = *end == '\0' ? nullptr : ++ahead_;
        surplus_ = 0;
    } else if (ahead_[-1] == ' ') {
        end = ahead_;
        row_ = end;
        surplus_ = 0;
    } else if (space_ > start) { // a word is cut: it goes to the next row
        end = space_;
        row_ = end + 1;
        if (surplus_ != 0) {
            const std::string_view kept(row_, static_cast<std::size_t>(ahead_ - row_));
            surplus_ = ahead_ - row_ - columnsOf(kept);
        }
    } else if (isBrokenWord()) {
        end = ahead_;
        if (isBlank(*end) || *end == '\n') // the word ends here, too
            ++ahead_;
        row_ = *end == '\0' ? nullptr : ahead_;
        surplus_ = 0;
    } else {
        ++row_;
    }
    return std::string_view(start, static_cast<std::size_t>(end - start));
}

bool countsColumns()
{
#if NCURSES_WIDECHAR
    const char* szLocale = isEdition2() ? std::setlocale(LC_CTYPE, nullptr) : nullptr;
    return szLocale && std::strcmp(szLocale, "C") != 0 && std::strcmp(szLocale, "POSIX") != 0;
#else
    return false;
#endif
}

int widthOf(std::string_view text)
{
    if (!isAscii(text) && countsColumns())
        return columnsOf(text);
    return static_cast<int>(std::min<std::size_t>(text.size(), INT_MAX));
}

std::string_view cutText(const char* szText, long long nColumns)
{
    const std::string_view text = viewOf(szText);
    const auto nMost = static_cast<std::size_t>(kul::clamp(nColumns, 0LL, 1LL * INT_MAX));
    const std::string_view first(text.data(), std::min(text.size(), nMost));
    // A mark may stand behind.
    const std::string_view looked(text.data(), std::min(text.size(), nMost + 1));
    return isAscii(looked) || !countsColumns() ? first : fitting(text, static_cast<int>(nMost));
}

std::string_view viewOf(const char* szText)
{
    return szText ? std::string_view(szText, strnlen(szText, INT_MAX)) : "";
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
    const bool columns = !isAscii(lookedAt(text, nStart, nLength)) && countsColumns();
    const int nBytes = columns ? lineBytes(text, nStart, nLength) : nLength;
    if (size < static_cast<long long>(nStart) + nBytes)
        return static_cast<int>(size - 1);
    const int nLast = std::max(shifted(nStart, nBytes - 1LL), -1);
    if (nLast <= nStart)
        return nLast;
    const char* cells = text.data();
    const void* newline =
        std::memchr(cells + nStart, '\n', static_cast<std::size_t>(nLast - nStart));
    if (newline)
        return static_cast<int>(static_cast<const char*>(newline) - cells);
    const auto isCut = [=](int nPlace) {
        return isWordOrEnd(cells[nPlace]) || (columns && !isAscii(cells[nPlace]));
    };
    int nEnd = nLast;
    if (at(text, nLast + 1LL) != ' ') {
        while (nEnd > nStart && isCut(nEnd))
            --nEnd;
        if (nEnd == nStart && isBroken(text, nStart))
            return nLast;
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
        kul::drawText(win, kul::shifted(nYPos, nRows), nXPos, *row, nWidth);
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
        kul::drawText(win, nYPos + nRow, nXPos, *row, nWidth);
    }
}

// A plain text that fits is one row, and most are.
int GetWrapTextHeight(int nWidth, const char* szText)
{
    int nPlain = 0;
    while (szText && nPlain < nWidth && kul::isPlain(szText[nPlain]))
        ++nPlain;
    if (nPlain > 0 && nPlain < nWidth && szText[nPlain] == '\0')
        return 1;
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

int kulgui_nextLetter(const char* szText, int* nColumns)
{
    const std::string_view text = kul::viewOf(szText);
    const kul::Letter letter = text.empty() ? kul::Letter{} : kul::nextLetter(text);
    if (nColumns)
        *nColumns = letter.nColumns;
    return static_cast<int>(letter.nBytes);
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
