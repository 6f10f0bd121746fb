// SPDX-License-Identifier: MIT
//
// Texts to read: with a button, with two that answer a question, or with none.
#include "boxes.hpp"
#include "window.hpp"

namespace kuldialog {

Answer runMessage(const Call& call)
{
    const Settings& settings = call.settings;
    Window window(settings, call.argument(0), call.number(1), call.number(2));
    const bool asks = call.variant == kQuestion;
    if (call.variant == kInformation) {
        if (!window.open())
            return kFailed;
        window.show();
        return kAccepted;
    }
    window.addButtons(settings.text(asks ? kYesLabel : kOkLabel, asks ? "Yes" : "OK"),
                      asks ? settings.text(kNoLabel, "No") : nullptr);
    return window.open() ? window.run() : kFailed;
}

} // namespace kuldialog
