// SPDX-License-Identifier: MIT
//
// Texts to read: with a button, with two that answer a question, or with none.
#include "boxes.hpp"
#include "window.hpp"

namespace kuldialog {

Answer runMessage(const Call& call)
{
    constexpr Buttons kButtonsOf[] = {kOk, kYesNo, kNoButtons}; // by variant
    Window window(call, call.argument(0));
    if (!window.open(kButtonsOf[call.variant]))
        return kFailed;
    return call.variant == kInformation ? window.show() : window.run();
}

} // namespace kuldialog
