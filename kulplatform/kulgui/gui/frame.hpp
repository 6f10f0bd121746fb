// SPDX-License-Identifier: MIT
//
// The windows and panels of dialogs, as the rooms beside need them.
#ifndef KUL_GUI_FRAME_HPP
#define KUL_GUI_FRAME_HPP

#include "../kulgui.h"

namespace kul {

// Shows a frame above all others with its shadow right below it. Does nothing when it is so.
void raisePanels(PANEL* pnlShadow, PANEL* pnlMain);

// Makes the colour of shadows black on black, once a dialog has had one.
void defineShadow();

// Deletes a dialog's windows and panels and clears the fields. The standard screen stays.
void deleteWindows(GUI* thisGUI);

} // namespace kul

#endif
