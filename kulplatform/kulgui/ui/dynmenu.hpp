// SPDX-License-Identifier: MIT
#ifndef KUL_UI_DYNMENU_HPP
#define KUL_UI_DYNMENU_HPP

#include "menu.hpp"

namespace kul {

// The part of the list that a dynamic menu shows.
struct MenuView {
    Finger<KULMENUELEMENT> place;
    int nFirst; // position in its first row
};

// A dynamic menu as it is allocated.
struct DynMenu : KULDYNMENU {
    using Public = KULDYNMENU;
    MenuView view;
};

inline auto& placeOf(DynMenu& menu)
{
    return menu.view.place;
}

inline int pageOf(const DynMenu& menu)
{
    return std::max(menu.nHeight, 2) - 1;
}

Spot spotOf(DynMenu& menu);

void dropDynmenu(KULDYNMENU& menu);

} // namespace kul

#endif
