// SPDX-License-Identifier: MIT
//
// The once-a-second pass, for those who wait between two of them and for those who have to look at
// something outside of the program.
#ifndef KUL_GUI_POLLING_HPP
#define KUL_GUI_POLLING_HPP

#include "../kulgui.h"

namespace kul {

// Looks at what a dialog that is shown depends on, and says whether it has to be drawn. It must not
// run callbacks.
using SecondLook = bool (*)(const GUI& dialog);

// Has every pass look; again and again is the same as once.
void lookEverySecond(SecondLook look);

// Whether a second has passed; the first question after a pass begins the next second.
bool isPassDue();

// The pass as key handlers run it between two waits: without a callback that ran or a change that
// was seen it draws nothing.
void pollBetweenWaits();

// Draws all dialogs that are shown, each in its place in their order.
void drawAllShown();

} // namespace kul

#endif
