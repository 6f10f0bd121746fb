// SPDX-License-Identifier: MIT
//
// The description of the terminal that curses works by.
#ifndef KUL_GUI_DESCRIPTION_HPP
#define KUL_GUI_DESCRIPTION_HPP

#include <cstdio>

#include "../kulgui.h"

namespace kul {

// What tigetstr() gives for a string that the terminal has.
bool isString(const char* szString);

// Begins curses on a terminal, null for the one that the environment names, with a description
// that costs few bytes. Null for a terminal that is not known or cannot place its cursor; curses
// by itself would end the process for some of them.
SCREEN* openScreen(const char* szTerm, std::FILE* output, std::FILE* input);

} // namespace kul

#endif
