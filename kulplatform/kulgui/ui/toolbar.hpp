// SPDX-License-Identifier: MIT
#ifndef KUL_UI_TOOLBAR_HPP
#define KUL_UI_TOOLBAR_HPP

#include "element_list.hpp"

namespace kul {

// What the places of a toolbar's buttons follow from.
struct ToolbarLayout {
    const KULTOOLBARBUTTON* head;
    const KULTOOLBARBUTTON* last;
    unsigned nRemovals;
    int nX;
    int nY;
    int nXMove;
    int nYMove;
    int nButtons;

    bool operator==(const ToolbarLayout&) const = default;
};

// A toolbar as it is allocated.
struct Toolbar : KULTOOLBAR {
    using Public = KULTOOLBAR;
    Finger<KULTOOLBARBUTTON> place;
    ToolbarLayout laidOut; // as the buttons' places are now
};

int countElements(Toolbar& toolbar);
bool selectElement(Toolbar& toolbar, int nElement);
void dropToolbar(KULTOOLBAR& toolbar);

} // namespace kul

#endif
