// SPDX-License-Identifier: MIT
#ifndef KUL_UI_DESCRMENU_HPP
#define KUL_UI_DESCRMENU_HPP

#include "menu.hpp"

namespace kul {

// A description menu as it is allocated.
struct DescrMenu : KULDESCRMENU {
    using Public = KULDESCRMENU;
    Finger<KULDESCRMENUELEMENT> place;
};

inline auto& placeOf(DescrMenu& menu)
{
    return menu.place;
}

inline int pageOf(const DescrMenu&)
{
    return INT_MAX / 2;
}

void dropDescrmenu(KULDESCRMENU& menu);

} // namespace kul

#endif
