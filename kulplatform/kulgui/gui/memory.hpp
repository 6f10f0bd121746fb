// SPDX-License-Identifier: MIT
//
// Memory as the library uses it: cleared records and private copies of texts, by the C library's
// allocator so that nothing of the C++ run-time library is needed. Every call may give NULL.
#ifndef KUL_GUI_MEMORY_HPP
#define KUL_GUI_MEMORY_HPP

#include <cstdlib>
#include <cstring>

namespace kul {

template <typename Record>
Record* allocate()
{
    return static_cast<Record*>(std::calloc(1, sizeof(Record)));
}

// A private copy; NULL counts as the empty text.
inline char* copyText(const char* szText)
{
    return strdup(szText ? szText : "");
}

} // namespace kul

#endif
