// SPDX-License-Identifier: MIT
#include "text.hpp"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <cwchar>

namespace kuldialog {

namespace {

bool isBlank(char character)
{
    return character == ' ' || character == '\t';
}

// The next character's bytes; its columns go to nColumns. What is no character takes one.
std::size_t step(const char* szText, int& nColumns)
{
    nColumns = 1;
    if (static_cast<signed char>(*szText) >= 0)
        return 1;
    std::mbstate_t state{};
    wchar_t wide;
    const std::size_t size = std::mbrtowc(&wide, szText, MB_CUR_MAX, &state);
    if (size > MB_CUR_MAX)
        return 1;
    nColumns = std::max(wcwidth(wide), wide < 0xa0 ? 1 : 0);
    return size;
}

// How one of the programs reads a text; the other one knows "\n" alone.
struct Reading {
    bool expanding;      // "\n" is a newline
    bool tabsAreBlanks;  // one each
    bool linesAreBlanks; // newlines are
    bool single;         // blanks in a row are one
};

Reading reading(const Settings& settings, const char* szText)
{
    if (name == kWhiptail)
        return {true, false, false, false};
    if (!settings.is(kNoNlExpand) && std::strstr(szText, "\\n"))
        return {true, !settings.is(kNoCollapse), !settings.is(kCrWrap), false};
    if (settings.is(kTrim))
        return {false, true, !settings.is(kCrWrap), true};
    return {false, !settings.is(kNoCollapse), false, !settings.is(kNoCollapse)};
}

} // namespace

char* prepareText(const Settings& settings, const char* szText)
{
    const Reading how = reading(settings, szText);
    char* text = static_cast<char*>(std::malloc(std::strlen(szText) + 1));
    if (!text)
        return nullptr;
    char* to = text;
    for (const char* at = szText; *at; ++at) {
        char character = *at;
        if (how.expanding && character == '\\' && at[1] == 'n') {
            character = '\n';
            ++at;
        } else if (settings.is(kColors) && character == '\\' && at[1] == 'Z' && at[2]) {
            at += 2; // no colours inside of a text
            continue;
        } else if ((character == '\t' && how.tabsAreBlanks) ||
                   (character == '\n' && how.linesAreBlanks)) {
            character = ' ';
        }
        const bool again = how.single && character == ' ' && to > text && to[-1] == ' ';
        if (!again)
            *to++ = character;
    }
    *to = '\0';
    return text;
}

int columns(const char* szText)
{
    int nAll = 0;
    int nColumns;
    for (; *szText && *szText != '\n'; nAll += nColumns)
        szText += step(szText, nColumns);
    return nAll;
}

int letters(const char* szText, std::size_t size)
{
    int nLetters = 0;
    int nColumns;
    for (const char* at = szText; at<szText + size; nLetters += nColumns> 0)
        at += step(at, nColumns);
    return nLetters;
}

std::size_t bytesWithin(const char* szText, int nColumns)
{
    const char* at = szText;
    int nWide;
    while (*at) {
        const std::size_t size = step(at, nWide);
        if ((nColumns -= nWide) < 0)
            break;
        at += size;
    }
    return static_cast<std::size_t>(at - szText);
}

int widestLine(const char* szText)
{
    int nWidest = 0;
    while (szText) {
        nWidest = std::max(nWidest, columns(szText));
        szText = std::strchr(szText, '\n');
        szText += szText != nullptr;
    }
    return nWidest;
}

Rows::~Rows()
{
    std::free(rows_);
}

bool Rows::add(const char* from, const char* to)
{
    if (count_ == room_) {
        const int nRoom = 2 * room_ + 16;
        void* grown = std::realloc(rows_, static_cast<std::size_t>(nRoom) * sizeof(Row));
        if (!grown)
            return false;
        rows_ = static_cast<Row*>(grown);
        room_ = nRoom;
    }
    rows_[count_++] = {static_cast<unsigned>(from - text_), static_cast<unsigned>(to - from)};
    return true;
}

bool Rows::wrap(const char* szText, int nWidth)
{
    text_ = szText;
    count_ = 0;
    nWidth = std::max(nWidth, 1);
    for (const char* at = szText; *at;) {
        const char* line = std::strchr(at, '\n');
        const char* end = line ? line : at + std::strlen(at);
        const char* to = at + bytesWithin(at, nWidth);
        const char* next = nullptr;
        if (to >= end) {
            to = end;
            next = line ? line + 1 : end;
        } else {
            // The blank that the row ends with, or the last one in it, unless all before are.
            const char* blank = to;
            while (blank > at && !isBlank(*blank))
                --blank;
            const char* word = blank;
            while (word > at && isBlank(word[-1]))
                --word;
            if (word > at) {
                to = word;
                for (next = blank + 1; isBlank(*next);)
                    ++next;
                next += *next == '\n';
            } else {
                int nWide;
                to = std::max(to, at + step(at, nWide));
                next = to;
            }
        }
        if (!add(at, to))
            return false;
        at = next;
    }
    return true;
}

const char* Rows::row(int nRow, std::size_t& size) const
{
    size = nRow >= 0 && nRow < count_ ? rows_[nRow].size : 0;
    return size ? text_ + rows_[nRow].start : "";
}

} // namespace kuldialog
