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
    using Public = KULDYNMENU;
    MenuView view;
};

void dropDynmenu(KULDYNMENU& menu);

} // namespace kul

#endif
