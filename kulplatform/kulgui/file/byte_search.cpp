// SPDX-License-Identifier: MIT
#include "byte_search.hpp"

#include <algorithm>
#include <climits>
#include <cstring>

namespace kul {

namespace {

// Sixteen bytes at a time, in whatever the processor has for it.
constexpr std::size_t kWide = 16;
using Wide [[gnu::vector_size(kWide)]] = unsigned char;
using WideWords [[gnu::vector_size(kWide)]] = std::uint64_t;

Wide load(const char* bytes)
{
    Wide wide;
    std::memcpy(&wide, bytes, kWide);
    return wide;
}

Wide filled(char byte)
{
    return Wide{} + static_cast<unsigned char>(byte);
}

// Looks for a text of 2 to kWide bytes: where its first and its last byte stand in their places,
// it may be. Short texts are where memmem is slow; with long ones this could be.
const char* findShort(const char* bytes, const char* end, std::string_view wanted)
{
    const Wide first = filled(wanted.front());
    const Wide last = filled(wanted.back());
    const std::size_t nToLast = wanted.size() - 1;
    const auto isHere = [=](const char* place) {
        return std::memcmp(place, wanted.data(), wanted.size()) == 0;
    };
    for (; end - bytes >= static_cast<std::ptrdiff_t>(kWide + nToLast); bytes += kWide) {
        const auto fits = (load(bytes) == first) & (load(bytes + nToLast) == last);
        const auto words = reinterpret_cast<WideWords>(fits);
        if ((words[0] | words[1]) == 0)
            continue;
        for (std::size_t i = 0; i < kWide; ++i) {
            if (fits[i] && isHere(bytes + i))
                return bytes + i;
        }
    }
    for (; end - bytes > static_cast<std::ptrdiff_t>(nToLast); ++bytes) {
        if (isHere(bytes))
            return bytes;
    }
    return nullptr;
}

} // namespace

std::int64_t newlines(std::string_view text)
{
    const Wide newline = filled('\n');
    const char* bytes = text.data();
    std::size_t left = text.size();
    std::int64_t nFound = 0;
    while (left >= kWide) {
        const std::size_t nRounds = std::min<std::size_t>(left / kWide, UCHAR_MAX);
        Wide sums{};
        for (std::size_t i = 0; i < nRounds; ++i, bytes += kWide)
            sums -= reinterpret_cast<Wide>(load(bytes) == newline); // true is -1
        for (std::size_t i = 0; i < kWide; ++i)
            nFound += sums[i];
        left -= nRounds * kWide;
    }
    return nFound + std::count(bytes, bytes + left, '\n');
}

const char* findText(const char* bytes, const char* end, std::string_view wanted)
{
    if (wanted.size() >= 2 && wanted.size() <= kWide)
        return findShort(bytes, end, wanted);
    return static_cast<const char*>(
        memmem(bytes, static_cast<std::size_t>(end - bytes), wanted.data(), wanted.size()));
}

} // namespace kul
