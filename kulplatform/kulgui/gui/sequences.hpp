// SPDX-License-Identifier: MIT
//
// What the families of terminals send for their keys, as far as they have it in common.
#ifndef KUL_GUI_SEQUENCES_HPP
#define KUL_GUI_SEQUENCES_HPP

#include <cstddef>
#include <string_view>

#include "../kulgui.h"

namespace kul {

// What the bytes at the front are: how many, 0 when more have to come, and the key: 0 for none, or
// one of the numbers below.
struct FoundKey {
    std::size_t nBytes;
    int nKey;
};

// The brackets of a paste; a string that begins, a control sequence without end that goes on.
enum { kPasteBegins = -1, kPasteEnds = -2, kTextBegins = -3, kControlGoesOn = -4 };

// The key in front of bytes that are not none. Late: no more bytes will come to these.
FoundKey commonKey(std::string_view bytes, bool late);

// Whether the locale is UTF-8, in which bytes of eight bits are never control characters.
bool isUtf8();

inline unsigned char at(std::string_view bytes, std::size_t place)
{
    return static_cast<unsigned char>(bytes.data()[place]);
}

inline bool isBetween(unsigned char byte, unsigned char first, unsigned char last)
{
    return byte >= first && byte <= last;
}

} // namespace kul

#endif
