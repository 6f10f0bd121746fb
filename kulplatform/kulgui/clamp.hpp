// SPDX-License-Identifier: MIT
//
// A number within two others. The standard one takes and returns references, for which every number
// has to lie in memory: a kilobyte of the small library.
#ifndef KUL_CLAMP_HPP
#define KUL_CLAMP_HPP

namespace kul {

template <typename Number>
constexpr Number clamp(Number value, Number least, Number most)
{
    return value < least ? least : value > most ? most : value;
}

} // namespace kul

#endif
