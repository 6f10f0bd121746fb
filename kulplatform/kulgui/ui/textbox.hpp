// SPDX-License-Identifier: MIT
//
// What the table of kinds needs of text boxes, and what their drawing and editing share.
#ifndef KUL_UI_TEXTBOX_HPP
#define KUL_UI_TEXTBOX_HPP

#include "../gui/draw.hpp"

namespace kul {

void dropTextbox(KULTEXTBOX& box);

// Columns or rows of a box without its border.
inline int innerSize(int nSize, int nBorder)
{
    return shifted(nSize, nBorder == BORDER ? -2 : 0);
}

} // namespace kul

#endif
