// SPDX-License-Identifier: MIT
#include "byte_search.hpp"

#include <algorithm>
#include <bit>
#include <climits>
#include <cstring>

namespace kul {

namespace {

// Sixteen bytes at a time, in whatever the processor has for it.
constexpr std::ptrdiff_t kWide = 16;
using Wide [[gnu::vector_size(kWide)]] = unsigned char;
using WideWords [[gnu::vector_size(kWide)]] = std::uint64_t;

// What is searched at a time before it is asked whether the way pays.
constexpr std::ptrdiff_t kStretch = 1 << 14;

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

std::int64_t sum(Wide counts)
{
    std::int64_t nSum = 0;
    for (std::ptrdiff_t i = 0; i < kWide; ++i)
        nSum += counts[i];
    return nSum;
}

// One bit for each byte of a word that is not 0, the first one in memory the lowest.
std::uint64_t marks(std::uint64_t word)
{
    word &= 0x0101010101010101;
    return std::endian::native == std::endian::little ? word : __builtin_bswap64(word);
}

} // namespace

std::int64_t newlines(std::string_view text)
{
    constexpr std::size_t kStep = 2 * kWide; // two sums, so that none waits for the other
    const Wide newline = filled('\n');
    const char* bytes = text.data();
    std::size_t left = text.size();
    std::int64_t nFound = 0;
    while (left >= kStep) {
        const std::size_t nSteps = std::min<std::size_t>(left / kStep, UCHAR_MAX);
        Wide sums{};
        Wide others{};
        for (std::size_t i = 0; i < nSteps; ++i, bytes += kStep) { // true is -1
            sums -= reinterpret_cast<Wide>(load(bytes) == newline);
            others -= reinterpret_cast<Wide>(load(bytes + kWide) == newline);
        }
        nFound += sum(sums) + sum(others);
        left -= nSteps * kStep;
    }
    return nFound + std::count(bytes, bytes + left, '\n');
}

ByteSearch::ByteSearch(std::string_view wanted, std::string_view sample) : wanted_(wanted)
{
    unsigned counts[UCHAR_MAX + 1] = {};
    for (const char byte : sample)
        ++counts[static_cast<unsigned char>(byte)];
    const auto count = [&](std::ptrdiff_t place) {
        return counts[static_cast<unsigned char>(wanted.data()[place])];
    };
    const auto nSize = static_cast<std::ptrdiff_t>(wanted.size());
    for (std::ptrdiff_t i = 1; i < nSize; ++i)
        rare_ = count(i) < count(rare_) ? i : rare_;
    other_ = rare_ == 0 ? nSize - 1 : 0;
    for (std::ptrdiff_t i = 0; i < nSize; ++i)
        other_ = i != rare_ && count(i) < count(other_) ? i : other_;
}

bool ByteSearch::isAt(const char* place)
{
    ++nLooks_;
    return std::memcmp(place, wanted_.data(), wanted_.size()) == 0;
}

const char* ByteSearch::byOneByte(const char* bytes, const char* end)
{
    for (; bytes < end; ++bytes) {
        const void* found = std::memchr(bytes + rare_, wanted_.data()[rare_],
                                        static_cast<std::size_t>(end - bytes));
        if (!found)
            break;
        bytes = static_cast<const char*>(found) - rare_;
        if (isAt(bytes))
            return bytes;
    }
    return nullptr;
}

const char* ByteSearch::byTwoBytes(const char* bytes, const char* end)
{
    const Wide rare = filled(wanted_.data()[rare_]);
    const Wide other = filled(wanted_.data()[other_]);
    for (; end - bytes >= kWide; bytes += kWide) {
        const auto fits = (load(bytes + rare_) == rare) & (load(bytes + other_) == other);
        const auto words = reinterpret_cast<WideWords>(fits);
        if ((words[0] | words[1]) == 0)
            continue;
        for (const int nWord : {0, 1}) {
            for (std::uint64_t left = marks(words[nWord]); left != 0; left &= left - 1) {
                const char* place = bytes + (nWord * 64 + std::countr_zero(left)) / 8;
                if (isAt(place))
                    return place;
            }
        }
    }
    for (; bytes < end; ++bytes) {
        if (isAt(bytes))
            return bytes;
    }
    return nullptr;
}

const char* ByteSearch::find(const char* bytes, const char* end)
{
    const auto nSize = static_cast<std::ptrdiff_t>(wanted_.size());
    if (end - bytes < nSize)
        return nullptr;
    const char* last = end - nSize + 1; // the text starts before
    while (way_ != Way::Library && bytes < last) {
        const char* next = bytes + std::min(kStretch, last - bytes);
        const bool byOne = way_ == Way::OneByte;
        nLooks_ = 0;
        if (const char* found = byOne ? byOneByte(bytes, next) : byTwoBytes(bytes, next))
            return found;
        if (nLooks_ > kStretch / (byOne ? 256 : 8 * nSize))
            way_ = byOne ? Way::TwoBytes : Way::Library;
        bytes = next;
    }
    return static_cast<const char*>(
        memmem(bytes, static_cast<std::size_t>(end - bytes), wanted_.data(), wanted_.size()));
}

} // namespace kul
