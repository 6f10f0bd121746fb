// SPDX-License-Identifier: MIT
//
// Where dialogs lie on the screen, and the windows and panels that they have there.
#ifndef KUL_GUI_PLACE_HPP
#define KUL_GUI_PLACE_HPP

#include "chain.hpp"

namespace kul {

// The colour set of shadows.
constexpr int kShadowPair = GREEN_YELLOW;

// Makes that colour black on black, once a dialog has had a shadow.
void defineShadow();

// Takes what a program wants for a dialog, KUL_KEEP for what it has.
void wantPlace(Dialog& dialog, int nX, int nY, int nWidth, int nHeight);

// Gives a dialog its place on the screen as it is now, and its windows their sizes and places if it
// has any. What is in them stays.
void layOut(Dialog& dialog);

// Makes the windows and panels of a dialog, or of a record of the program's own; none without
// memory.
void makeWindows(GUI* thisGUI);

// Deletes a dialog's and clears the fields. The standard screen stays.
void deleteWindows(Dialog& dialog);

// What a frame is made of, from the lowest on. Any of them may be null.
struct Panels {
    PANEL* pnlShadow;
    PANEL* pnlSide; // of its shadow, too
    PANEL* pnlMain;
};

Panels panelsOf(const GUI& gui);

// Shows a frame above all others with its shadow right below it. Does nothing when it is so, or
// when the order is kept.
void raisePanels(const Panels& panels);

// While it lives, a frame that is shown is not raised: what is drawn again keeps its place.
class KeptOrder {
public:
    KeptOrder();
    ~KeptOrder();
    KeptOrder(const KeptOrder&) = delete;
    KeptOrder& operator=(const KeptOrder&) = delete;
};

void hidePanels(const Panels& panels);

} // namespace kul

#endif
