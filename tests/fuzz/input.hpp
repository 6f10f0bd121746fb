// SPDX-License-Identifier: MIT
//
// What fuzz targets make of the bytes that they are given: numbers and texts, as long as there are
// any, and zeros afterwards.
#ifndef KUL_TESTS_FUZZ_INPUT_HPP
#define KUL_TESTS_FUZZ_INPUT_HPP

#include <cstdlib>
#include <string>
#include <string_view>

namespace kulfuzz {

inline std::string_view rest;

inline void begin(const unsigned char* data, std::size_t size)
{
    rest = {reinterpret_cast<const char*>(data), size};
}

inline bool isOver()
{
    return rest.empty();
}

inline unsigned take()
{
    const unsigned byte = rest.empty() ? 0 : static_cast<unsigned char>(rest.front());
    rest.remove_prefix(rest.empty() ? 0 : 1);
    return byte;
}

inline std::string takeText(std::size_t nMost)
{
    const std::string text(rest.substr(0, take() % (nMost + 1)));
    rest.remove_prefix(std::min(text.size(), rest.size()));
    return text;
}

// Ends the program, for the fuzzer to see.
inline void check(bool holds)
{
    if (!holds)
        std::abort();
}

} // namespace kulfuzz

#endif
