// SPDX-License-Identifier: MIT
//
// Where a key takes the selection of a list in edition 2, whatever the list is made of: along the
// elements and round, by pages, to the ends, and to the next element that begins with a letter.
// Disabled elements are passed over.
#ifndef KUL_UI_STEPS_HPP
#define KUL_UI_STEPS_HPP

#include <algorithm>
#include <cwchar>
#include <cwctype>

#include "../gui/edition.hpp"
#include "../kulgui.h"

namespace kul {

struct StepKeys {
    int nBack;
    int nForward;
    int nPage; // elements that PageUp and PageDown go over
};

// The first letter of a text in lower case; 0 for none.
inline wint_t firstLetter(const char* szText)
{
    while (szText && *szText == ' ')
        ++szText;
    if (!szText || *szText == '\0')
        return 0;
    std::mbstate_t state{};
    wchar_t letter = 0;
    const std::size_t size = std::mbrtowc(&letter, szText, MB_CUR_MAX, &state);
    return size <= MB_CUR_MAX ? std::towlower(static_cast<wint_t>(letter)) : 0;
}

// The letter of a key, the same way.
inline wint_t letterOf(int nKey)
{
    if (nKey > KUL_CHARACTER)
        return std::towlower(static_cast<wint_t>(nKey - KUL_CHARACTER));
    return nKey > ' ' && nKey < 127 ? std::towlower(static_cast<wint_t>(nKey)) : 0;
}

// Whether Enter does something to an element: edition 1 asks nothing.
inline bool isUsable(const auto& element)
{
    return !isEdition2() || element.nEnable == 1;
}

// An element from nFrom on that can be selected and is wanted, to and with the end of the list in
// that direction; -1 for none. at(n) gives the element at an index.
template <typename At, typename Wanted>
int seek(int nFrom, int nDirection, int nCount, At at, Wanted wanted)
{
    for (int n = nFrom; n >= 0 && n < nCount; n += nDirection) {
        const auto* element = at(n);
        if (!element)
            return -1;
        if (element->nEnable == 1 && wanted(*element))
            return n;
    }
    return -1;
}

// The same, round the list.
template <typename At, typename Wanted>
int seekRound(int nFrom, int nDirection, int nCount, At at, Wanted wanted)
{
    const int nFound = seek(nFrom, nDirection, nCount, at, wanted);
    return nFound >= 0 ? nFound
                       : seek(nDirection > 0 ? 0 : nCount - 1, nDirection, nCount, at, wanted);
}

constexpr auto any = [](const auto&) { return true; };

// The element that a selection stands for: itself where it can be selected, else one near it.
template <typename At>
int settled(int nSelect, int nCount, At at)
{
    const int nFound =
        seekRound(std::clamp(nSelect, 0, std::max(nCount - 1, 0)), 1, nCount, at, any);
    return nFound >= 0 ? nFound : std::clamp(nSelect, 0, std::max(nCount - 1, 0));
}

// Where a key takes a selection; where it is for other keys, and where nothing else can be
// selected.
template <typename At>
int stepped(int nSelect, int nKey, const StepKeys& keys, int nCount, At at)
{
    const int nFrom = std::clamp(nSelect, -1, nCount); // programs may have set any
    int nTo = -1;
    if (nKey == keys.nBack) {
        nTo = seekRound(nFrom - 1, -1, nCount, at, any);
    } else if (nKey == keys.nForward) {
        nTo = seekRound(nFrom + 1, 1, nCount, at, any);
    } else if (nKey == KS_HOME || nKey == KS_PAGEUP) {
        const int nAim = nKey == KS_HOME ? 0 : std::max(nFrom - keys.nPage, 0);
        nTo = seek(nAim, 1, std::max(nFrom, 0), at, any);
        nTo = nTo >= 0 ? nTo : seek(nAim, -1, nCount, at, any);
    } else if (nKey == KS_END || nKey == KS_PAGEDOWN) {
        const int nAim = nKey == KS_END ? nCount - 1 : std::min(nCount - 1, nFrom + keys.nPage);
        nTo = seek(nAim, -1, nCount, at, any);
        nTo = nTo > nFrom ? nTo : seek(std::max(nAim, 0), 1, nCount, at, any);
    } else if (const wint_t letter = letterOf(nKey)) {
        nTo = seekRound(nFrom + 1, 1, nCount, at,
                        [=](const auto& element) { return firstLetter(element.szText) == letter; });
    }
    return nTo >= 0 ? nTo : nSelect;
}

} // namespace kul

#endif
