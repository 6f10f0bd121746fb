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

// Looks for one text, which is not empty and must stay, in one piece of memory after the other.
//
// It looks where the byte of the text stands that is the rarest one, as far as a sample of what is
// to be searched can tell. Where that is not rare, it looks for two bytes at once, and where these
// stand everywhere, it leaves it to the C library, which is slower and never very slow. Each way
// shows by itself when it does not pay, for all that is still to be searched.
class ByteSearch {
public:
    ByteSearch(std::string_view wanted, std::string_view sample);

    // The first place in [bytes, end) where the text stands, null for none.
    const char* find(const char* bytes, const char* end);

private:
    enum class Way { OneByte, TwoBytes, Library };

    bool isAt(const char* place);

    // The first place in [bytes, end) where the text starts; what comes behind can be read.
    const char* byOneByte(const char* bytes, const char* end);
    const char* byTwoBytes(const char* bytes, const char* end);

    std::string_view wanted_;
    std::ptrdiff_t rare_ = 0;   // where in the text its rarest byte is
    std::ptrdiff_t other_ = 0;  // and the rarest one beside
    std::ptrdiff_t nLooks_ = 0; // at places where the text might have been
    Way way_ = Way::OneByte;
};

} // namespace kul

#endif
