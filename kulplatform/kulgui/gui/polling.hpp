// SPDX-License-Identifier: MIT
//
// The once-a-second pass, for those who have to look at something outside of the program.
#ifndef KUL_GUI_POLLING_HPP
#define KUL_GUI_POLLING_HPP

#include "../kulgui.h"

namespace kul {

// Looks at what a dialog that is shown depends on, and says whether it has to be drawn. It must not
// run callbacks.
using SecondLook = bool (*)(const GUI& dialog);

// Has every pass look; again and again is the same as once.
void lookEverySecond(SecondLook look);

} // namespace kul

#endif
