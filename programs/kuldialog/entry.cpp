// SPDX-License-Identifier: MIT
//
// One line of text to enter.
#include "entry.hpp"

#include <algorithm>
#include <cstring>

#include <kulgui.h>

#include "boxes.hpp"
#include "clamp.hpp"
#include "output.hpp"

namespace kuldialog {

namespace {

constexpr int kMostCharacters = 2048;

} // namespace

// Arrows up and down leave the line, as the keys of the program do whose name this one has; left
// and right are its own.
int lineKey(Window& window, int nKey)
{
    if (!window.has(kBody))
        return nKey;
    if (nKey == KS_ENTER) {
        Window::chooseDefault();
        return 0;
    }
    if (nKey == KS_UP && name == kWhiptail)
        return 0;
    if (nKey == KS_BACKTAB || (nKey == KS_UP && name == kDialog)) {
        window.goToButtons(-1);
        return 0;
    }
    return nKey == KS_DOWN || nKey == KS_UP ? KS_TAB : nKey;
}

const char* entered(const Window& window, int nRef)
{
    const char* szText = kultextbox_getText(window.nChain, nRef);
    return szText ? szText : "";
}

void setLimit(const Window& window, int nRef, int nLimit, const char* szText)
{
    if (const int nMost = window.settings.numbers[kMaxInput]; nMost > 0)
        nLimit = std::min(nLimit, nMost);
    const int nHas = static_cast<int>(std::min<std::size_t>(std::strlen(szText), 65534));
    made(kultextbox_setLimit(window.nChain, nRef, kul::clamp(nLimit, std::max(nHas, 1), 65535)));
}

void createLine(const Window& window, int nRef, int nX, int nY, int nWidth, int nMask, int nLimit,
                const char* szText)
{
    kultextbox_create(window.nChain, nRef);
    kultextbox_config(window.nChain, nRef, colors[kFocus], colors[kFieldsColor], KUL_KEEP, nX, nY,
                      std::max(nWidth, 1), 1, NOBORDER, nMask, nullptr, nullptr, nullptr, nullptr);
    setLimit(window, nRef, nLimit, szText);
    made(kultextbox_setText(window.nChain, nRef, szText));
}

Answer runEntry(const Call& call)
{
    const Settings& settings = call.settings;
    Window window(call, call.argument(0));
    if (!window.open(kOkCancel, 1, 1, 24))
        return kFailed;
    createLine(window, kBody, 2, window.nBodyY, window.innerWidth(),
               call.variant == kSecret ? MASK : NOMASK, kMostCharacters, call.argument(3));
    window.onKey = lineKey;
    window.nFocus = kBody;
    const Answer answer = window.run();
    if (answer == kAccepted || answer == kExtra || answer == kHelped) {
        beginAnswer(settings);
        output.add(entered(window, kBody));
    }
    return answer;
}

} // namespace kuldialog
