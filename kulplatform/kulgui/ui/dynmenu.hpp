// SPDX-License-Identifier: MIT
#ifndef KUL_UI_DYNMENU_HPP
#define KUL_UI_DYNMENU_HPP

#include "element_list.hpp"

namespace kul {

// The part of the list that a dynamic menu shows.
struct MenuView {
    Place<KULMENUELEMENT> place;
    int nFirst; // position in its first row
};

// A dynamic menu as it is allocated.
struct DynMenu : KULDYNMENU {
    MenuView view;
};

void dropDynmenu(DynMenu& menu);
void showDynmenu(GUI* thisGUI, DynMenu* thisMenu, int nFocus);

} // namespace kul

#endif
