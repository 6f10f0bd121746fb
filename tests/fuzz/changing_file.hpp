// SPDX-License-Identifier: MIT
//
// A file in memory, and what an input makes of it: it grows, is cut off, overwritten, or replaced by
// another one of its name.
#ifndef KUL_TESTS_FUZZ_CHANGING_FILE_HPP
#define KUL_TESTS_FUZZ_CHANGING_FILE_HPP

#include <algorithm>
#include <sys/mman.h>
#include <unistd.h>

#include "input.hpp"

namespace kulfuzz {

constexpr long kEdges[] = {1 << 12, 1 << 14, 1 << 15, 1 << 16}; // near which much happens
constexpr long kLargest = 5 << 14;                              // all of it may be one line

inline int nFile = -1; // what has the name

// A place in the file, often one where something ends.
inline long takePlace()
{
    const unsigned kind = take();
    return (kind % 2 ? kEdges[kind / 2 % 4] : lseek(nFile, 0, SEEK_END)) + static_cast<int>(take()) - 128;
}

// Gives the name to an empty file.
inline void newFile()
{
    const int nNew = memfd_create("file", 0);
    nFile = nFile < 0 ? nNew : dup2(nNew, nFile);
    if (nNew != nFile)
        close(nNew);
}

inline void changeFile()
{
    const unsigned what = take();
    if (what % 8 == 0)
        newFile();
    if (what % 4 == 1) {
        check(ftruncate(nFile, std::clamp<long>(takePlace(), 0, kLargest)) == 0);
        return;
    }
    const std::string part = takeText(24);
    const unsigned nTwice = take(); // seldom often: that takes its time
    std::string text = part;
    for (unsigned i = nTwice % 8 + (nTwice < 240 ? 0 : 4); i > 0; --i)
        text += text;
    const long place = what % 4 == 2 ? lseek(nFile, 0, SEEK_END) : takePlace();
    if (place >= 0 && place + static_cast<long>(text.size()) < kLargest)
        check(pwrite(nFile, text.data(), text.size(), place) >= 0);
}

inline std::string path()
{
    return "/proc/self/fd/" + std::to_string(nFile);
}

} // namespace kulfuzz

#endif
