// SPDX-License-Identifier: MIT
#ifndef KUL_UI_DESCRMENU_HPP
#define KUL_UI_DESCRMENU_HPP

#include "element_list.hpp"

namespace kul {

// A description menu as it is allocated.
struct DescrMenu : KULDESCRMENU {
    using Public = KULDESCRMENU;
    Place<KULDESCRMENUELEMENT> place;
};

void dropDescrmenu(KULDESCRMENU& menu);

} // namespace kul

#endif
