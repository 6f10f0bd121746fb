// SPDX-License-Identifier: MIT
//
// Text that grows, to be put together, read and written. Without memory it stays as it is and says
// so.
#ifndef KULDIALOG_BUFFER_HPP
#define KULDIALOG_BUFFER_HPP

#include "ready/rows.hpp"

namespace kuldialog {

// Whether there was memory for all that the boxes are made of. What lacks a part is not shown as if
// it were whole, and has no answer.
inline bool isWhole = true;

// Takes the result of a call that needs memory, negative without.
void made(int nResult);

class Buffer : public kulready::Text {
public:
    Buffer& add(const char* szText, std::size_t size);
    Buffer& add(const char* szText);
    Buffer& add(char character);
    Buffer& addNumber(int nNumber);

    // Adds what a descriptor gives, all of it. False where it cannot be read.
    bool addFrom(int nFd);
    // Writes all of it. False where that fails.
    bool writeTo(int nFd) const;

    void clear() { removeFront(size()); }
};

// A copy of the first bytes of a text, to be freed; null without memory.
char* copyOf(const char* szText, std::size_t size);

} // namespace kuldialog

#endif
