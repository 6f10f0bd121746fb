// SPDX-License-Identifier: MIT
//
// The frames of dialogs, as the rooms beside need them.
#ifndef KUL_GUI_FRAME_HPP
#define KUL_GUI_FRAME_HPP

#include "../kulgui.h"

namespace kul {

// Draws a dialog that is shown as it is, with all that is in it, and leaves it where it is between
// the others.
void redraw(CHAIN* thisChain);

} // namespace kul

#endif
