// SPDX-License-Identifier: MIT
//
// What the table of kinds needs of option lists.
#ifndef KUL_UI_OPTIONS_HPP
#define KUL_UI_OPTIONS_HPP

#include "ring_list.hpp"

namespace kul {

void dropOptions(OptionList& list);

} // namespace kul

#endif
