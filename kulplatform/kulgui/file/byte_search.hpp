// SPDX-License-Identifier: MIT
//
// Counting and searching in memory, about as fast as it can be read.
#ifndef KUL_FILE_BYTE_SEARCH_HPP
#define KUL_FILE_BYTE_SEARCH_HPP

#include <cstdint>
#include <string_view>

namespace kul {

// Counts the newlines of a text.
std::int64_t newlines(std::string_view text);

// The first place in [bytes, end) where a text stands, null for none.
const char* findText(const char* bytes, const char* end, std::string_view wanted);

} // namespace kul

#endif
