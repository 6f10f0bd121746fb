// SPDX-License-Identifier: MIT
//
// The windows and panels of dialogs, as the rooms beside need them.
#ifndef KUL_GUI_FRAME_HPP
#define KUL_GUI_FRAME_HPP

#include "../kulgui.h"

namespace kul {

// Shows a frame above all others with its shadow right below it. Does nothing when it is so, or
// when the order is kept.
void raisePanels(PANEL* pnlShadow, PANEL* pnlMain);

// While it lives, a frame that is shown is not raised: what is drawn again keeps its place.
class KeptOrder {
public:
    KeptOrder();
    ~KeptOrder();
    KeptOrder(const KeptOrder&) = delete;
    KeptOrder& operator=(const KeptOrder&) = delete;
};

// Makes the colour of shadows black on black, once a dialog has had one.
void defineShadow();

// Deletes a dialog's windows and panels and clears the fields. The standard screen stays.
void deleteWindows(GUI* thisGUI);

} // namespace kul

#endif
