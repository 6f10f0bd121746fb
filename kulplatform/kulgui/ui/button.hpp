// SPDX-License-Identifier: MIT
#ifndef KUL_UI_BUTTON_HPP
#define KUL_UI_BUTTON_HPP

#include "../kulgui.h"

namespace kul {

constexpr int kButtonHeight = 3;

// The column at which a button's text begins.
int textColumn(int nX, int nWidth, const char* szText);

// Draws what tells the dialog's default button.
void markDefault(const GUI& gui, const KULBUTTON& button, bool focused);

void dropButton(KULBUTTON& button);

} // namespace kul

#endif
