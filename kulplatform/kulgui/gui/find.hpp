// SPDX-License-Identifier: MIT
//
// Looking along a row of things. The standard library's way is written out four times over for each
// condition, which a small library cannot afford.
#ifndef KUL_GUI_FIND_HPP
#define KUL_GUI_FIND_HPP

#include <string_view>

namespace kul {

// The first one that is so; the end where none is.
template <typename Iterator, typename Condition>
Iterator findFirst(Iterator first, Iterator end, Condition isSo)
{
    while (first != end && !isSo(*first))
        ++first;
    return first;
}

// Whether curses shows a character as it is, in one cell, in every locale.
constexpr bool isPlain(char character)
{
    return character >= ' ' && character <= '~';
}

// The first character that is not plain.
inline const char* plainEnd(const char* first, const char* end)
{
    return findFirst(first, end, [](char character) { return !isPlain(character); });
}

inline bool allPlain(std::string_view text)
{
    const char* end = text.data() + text.size();
    return plainEnd(text.data(), end) == end;
}

} // namespace kul

#endif
