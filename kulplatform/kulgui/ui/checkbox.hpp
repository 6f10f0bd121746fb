// SPDX-License-Identifier: MIT
//
// What the table of kinds needs of check box lists.
#ifndef KUL_UI_CHECKBOX_HPP
#define KUL_UI_CHECKBOX_HPP

#include "ring_list.hpp"

namespace kul {

void dropCheckbox(CheckList& list);

} // namespace kul

#endif
