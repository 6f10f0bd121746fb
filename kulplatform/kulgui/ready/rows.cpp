// SPDX-License-Identifier: MIT
#include "rows.hpp"

#include <algorithm>
#include <climits>
#include <cstring>
#include <utility>

namespace kulready {

bool Text::add(const char* text, std::size_t size)
{
    if (size_ + size + 1 > room_) {
        const std::size_t room = 2 * (size_ + size) + 64;
        auto* larger = static_cast<char*>(std::realloc(text_, room));
        if (!larger)
            return whole_ = false;
        text_ = larger;
        room_ = room;
    }
    std::memcpy(text_ + size_, text, size);
    size_ += size;
    text_[size_] = '\0';
    return true;
}

bool Text::add(const char* szText)
{
    return add(szText, std::strlen(szText));
}

void Text::removeFront(std::size_t size)
{
    size = std::min(size, size_);
    if (size == 0)
        return;
    size_ -= size;
    std::memmove(text_, text_ + size, size_ + 1);
}

void Text::swap(Text& other)
{
    std::swap(text_, other.text_);
    std::swap(size_, other.size_);
    std::swap(room_, other.room_);
    std::swap(whole_, other.whole_);
}

int plus(int nFirst, int nSecond)
{
    return static_cast<int>(std::min<long long>(1LL * nFirst + nSecond, INT_MAX));
}

int columns(const char* szText)
{
    int nColumns = 0;
    while (*szText != '\0' && *szText != '\n' && nColumns < INT_MAX - 2) {
        int nLetter = 0;
        szText += kulgui_nextLetter(szText, &nLetter);
        nColumns += nLetter;
    }
    return nColumns;
}

int widestLine(const char* szText)
{
    int nWidest = 0;
    for (const char* line = szText; line; line = std::strchr(line, '\n')) {
        line += *line == '\n';
        nWidest = std::max(nWidest, columns(line));
        if (*line == '\0')
            break;
    }
    return nWidest;
}

bool Rows::add(const char* start, const char* end)
{
    if (nRows_ == nRoom_) {
        const int nRoom = nRoom_ + nRoom_ / 2 + 16;
        void* larger = std::realloc(rows_, static_cast<std::size_t>(nRoom) * sizeof(Row));
        if (!larger)
            return false;
        rows_ = static_cast<Row*>(larger);
        nRoom_ = nRoom;
    }
    rows_[nRows_++] = {start, static_cast<std::size_t>(end - start)};
    return true;
}

bool Rows::wrap(const char* szText, int nColumns)
{
    nRows_ = 0;
    nColumns = std::max(nColumns, 1);
    const char* start = szText;
    const char* blank = nullptr; // the last one at which the row can end
    int nUsed = 0;
    for (const char* at = szText; *at != '\0';) {
        if (*at == '\n') {
            if (!add(start, at))
                return false;
            start = ++at;
            blank = nullptr;
            nUsed = 0;
            continue;
        }
        int nLetter = 0;
        const int nBytes = kulgui_nextLetter(at, &nLetter);
        if (*at == ' ')
            blank = at;
        if (nUsed + nLetter <= nColumns || at == start) {
            nUsed += nLetter;
            at += nBytes;
            continue;
        }
        const char* end = blank && blank > start ? blank : at;
        if (!add(start, end))
            return false;
        for (start = end; *start == ' '; ++start) {
        }
        at = start;
        blank = nullptr;
        nUsed = 0;
    }
    return *start == '\0' || add(start, start + std::strlen(start));
}

const char* Rows::row(int nRow, std::size_t& size) const
{
    size = nRow < nRows_ ? rows_[nRow].size : 0;
    return nRow < nRows_ ? rows_[nRow].start : "";
}

} // namespace kulready
