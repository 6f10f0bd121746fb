// SPDX-License-Identifier: MIT
#include "steps.hpp"

#include <algorithm>
#include <cstdlib>
#include <cwchar>
#include <cwctype>

#include "../clamp.hpp"

namespace kul {

namespace {

// The first letter of a text in lower case; 0 for none.
wint_t firstLetter(const char* szText)
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
wint_t letterOf(int nKey)
{
    if (nKey > KUL_CHARACTER)
        return std::towlower(static_cast<wint_t>(nKey - KUL_CHARACTER));
    return nKey > ' ' && nKey < 127 ? std::towlower(static_cast<wint_t>(nKey)) : 0;
}

// An element from nFrom on that can be selected and begins with a letter, 0 for any, up to the end
// of the list in that direction; -1 for none.
int seek(int nFrom, int nDirection, const Steps& steps, wint_t letter = 0)
{
    for (int n = nFrom; n >= 0 && n < steps.nCount; n += nDirection) {
        const Step step = steps.at(n);
        if (step.enabled && (letter == 0 || firstLetter(step.szText) == letter))
            return n;
    }
    return -1;
}

// The same, round the list.
int seekRound(int nFrom, int nDirection, const Steps& steps, wint_t letter = 0)
{
    const int nFound = seek(nFrom, nDirection, steps, letter);
    const int nAgain = nDirection > 0 ? 0 : steps.nCount - 1;
    return nFound >= 0 ? nFound : seek(nAgain, nDirection, steps, letter);
}

} // namespace

int settled(int nSelect, const Steps& steps)
{
    if (!isEdition2())
        return nSelect;
    const int nNear = kul::clamp(nSelect, 0, std::max(steps.nCount - 1, 0));
    const int nFound = seekRound(nNear, 1, steps);
    return nFound >= 0 ? nFound : nNear;
}

int stepped(int nSelect, int nKey, const StepKeys& keys, const Steps& steps)
{
    const int nFrom = kul::clamp(nSelect, -1, steps.nCount); // programs may have set any
    const int nLast = steps.nCount - 1;
    int nTo = -1;
    if (nKey == keys.nBack) {
        nTo = seekRound(nFrom - 1, -1, steps);
    } else if (nKey == keys.nForward) {
        nTo = seekRound(nFrom + 1, 1, steps);
    } else if (nKey == KS_HOME || nKey == KS_PAGEUP) {
        const int nAim = nKey == KS_HOME ? 0 : std::max(nFrom - keys.nPage, 0);
        nTo = seek(nAim, 1, steps);
        if (nTo < 0 || nTo >= nFrom)
            nTo = seek(nAim, -1, steps);
    } else if (nKey == KS_END || nKey == KS_PAGEDOWN) {
        const int nAim = nKey == KS_END ? nLast : std::min(nLast, nFrom + keys.nPage);
        nTo = seek(nAim, -1, steps);
        if (nTo <= nFrom)
            nTo = seek(std::max(nAim, 0), 1, steps);
    } else if (const wint_t letter = letterOf(nKey)) {
        nTo = seekRound(nFrom + 1, 1, steps, letter);
    }
    return nTo >= 0 ? nTo : nSelect;
}

} // namespace kul
