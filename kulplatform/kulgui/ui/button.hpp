// SPDX-License-Identifier: MIT
#ifndef KUL_UI_BUTTON_HPP
#define KUL_UI_BUTTON_HPP

#include "../kulgui.h"

namespace kul {

void dropButton(KULBUTTON& button);

} // namespace kul

#endif
