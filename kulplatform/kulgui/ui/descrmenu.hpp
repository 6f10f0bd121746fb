// SPDX-License-Identifier: MIT
#ifndef KUL_UI_DESCRMENU_HPP
#define KUL_UI_DESCRMENU_HPP

#include "element_list.hpp"

namespace kul {

// A description menu as it is allocated.
struct DescrMenu : KULDESCRMENU {
    Place<KULDESCRMENUELEMENT> place;
};

void dropDescrmenu(KULDESCRMENU& menu);
void showDescrmenu(GUI* thisGUI, DescrMenu* thisMenu, int nFocus);

} // namespace kul

#endif
