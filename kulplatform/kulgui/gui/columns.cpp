// SPDX-License-Identifier: MIT
//
// The C library decodes and measures. There are no tables of our own, but for two short lists that
// it has no question for: what turns the direction of writing, and what has no picture.
#include "columns.hpp"

#include <algorithm>
#include <climits>
#include <cstdint>
#include <cstring>
#include <cwchar>

// Without wide characters in curses a text is bytes, of which those are shown that curses takes as
// they are.
#include <curses.h>

#include "find.hpp"

namespace kul {

namespace {

constexpr struct {
    wchar_t first;
    wchar_t last;
} kTurning[] = {{0x061C, 0x061C}, {0x200E, 0x200F}, {0x202A, 0x202E}, {0x2066, 0x2069}},
  kInvisible[] = {{0x00AD, 0x00AD}, {0x180B, 0x180D}, {0x200B, 0x200D},  {0x2060, 0x2060},
                  {0xFE00, 0xFE0F}, {0xFEFF, 0xFEFF}, {0xE0100, 0xE01EF}};

template <typename Ranges>
bool isIn(const Ranges& ranges, wchar_t character)
{
    return findFirst(std::begin(ranges), std::end(ranges), [=](const auto& range) {
               return character >= range.first && character <= range.last;
           }) != std::end(ranges);
}

bool isControl(wchar_t character)
{
    return character < L' ' || character == 127;
}

enum class Kind { Letter, Mark, LeftOut, StandIn };

struct Character {
    Kind kind;
    std::size_t nBytes;
    int nColumns;
    wchar_t character;
};

#if NCURSES_WIDECHAR
Character decode(std::string_view rest)
{
    wchar_t character = 0;
    std::mbstate_t state{};
    const std::size_t nBytes = std::mbrtowc(&character, rest.data(), rest.size(), &state);
    if (nBytes == 0 || nBytes > rest.size())
        return {Kind::StandIn, 1, 1, kStandIn};
    if (isIn(kInvisible, character))
        return {Kind::LeftOut, nBytes, 0, L'\0'};
    const int nColumns = wcwidth(character);
    if (nColumns < 0 || isIn(kTurning, character))
        return {Kind::StandIn, nBytes, 1, kStandIn};
    return {nColumns == 0 ? Kind::Mark : Kind::Letter, nBytes, nColumns, character};
}
#else
Character decode(std::string_view rest)
{
    const auto byte = static_cast<unsigned char>(rest.front());
    const bool shown = unctrl(byte)[1] == '\0';
    return {Kind::StandIn, 1, 1, shown ? static_cast<wchar_t>(byte) : kStandIn};
}
#endif

// Adds the marks at the front of a text to a letter, as many as a cell holds. Returns their bytes.
std::size_t addMarks(Letter& letter, std::string_view text)
{
    int nShown = 1;
    std::string_view rest = text;
    while (!rest.empty() && !isAscii(rest.front())) {
        const Character next = decode(rest);
        if (next.kind != Kind::Mark && next.kind != Kind::LeftOut)
            break;
        if (next.kind == Kind::Mark && nShown < kMostInCell)
            letter.shown[nShown++] = next.character;
        rest.remove_prefix(next.nBytes);
    }
    return text.size() - rest.size();
}

} // namespace

bool isAscii(std::string_view text)
{
    const char* at = text.data();
    const char* end = at + text.size();
    std::uint64_t word;
    for (; end - at >= static_cast<std::ptrdiff_t>(sizeof word); at += sizeof word) {
        std::memcpy(&word, at, sizeof word);
        if (word & 0x8080808080808080)
            return false;
    }
    return findFirst(at, end, [](char character) { return !isAscii(character); }) == end;
}

std::size_t marksAt(std::string_view text)
{
    Letter none{};
    return addMarks(none, text);
}

Letter decodeLetter(std::string_view rest, int nWidth)
{
    const char first = rest.front();
    if (isAscii(first) && (isControl(first) || first == ' '))
        return {1, 1, {static_cast<wchar_t>(first)}};
    const Character head = decode(rest);
    Letter letter = {head.nBytes, head.nColumns, {head.character}};
    if (head.kind == Kind::Mark)
        return {head.nBytes, 1, {kStandIn}};
    if (head.kind == Kind::Letter) {
        rest.remove_prefix(head.nBytes);
        letter.nBytes += addMarks(letter, rest);
    }
    return letter.nColumns > nWidth ? Letter{letter.nBytes, 1, {kStandIn}} : letter;
}

int columnsOf(std::string_view text)
{
    long long columns = static_cast<long long>(text.size());
    if (!isAscii(text)) {
        columns = 0;
        for (std::string_view rest = text; !rest.empty();) {
            const Letter letter = nextLetter(rest);
            columns += letter.nColumns;
            rest.remove_prefix(letter.nBytes);
        }
    }
    return static_cast<int>(std::min<long long>(columns, INT_MAX));
}

std::string_view fitting(std::string_view text, int nColumns)
{
    long long left = nColumns;
    std::string_view rest = text;
    while (!rest.empty()) {
        const Letter letter = nextLetter(rest, nColumns);
        left -= letter.nColumns;
        if (left < 0)
            break;
        rest.remove_prefix(letter.nBytes);
    }
    return {text.data(), text.size() - rest.size()};
}

} // namespace kul
