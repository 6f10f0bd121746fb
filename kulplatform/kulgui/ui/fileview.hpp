// SPDX-License-Identifier: MIT
#ifndef KUL_UI_FILEVIEW_HPP
#define KUL_UI_FILEVIEW_HPP

#include "../file/file_text.hpp"
#include "../kulgui.h"

namespace kul {

// The view is the start of its first row; rows are laid out when they are drawn.
struct FileView : KULFILEVIEW {
    using Public = KULFILEVIEW;
    FileText* text; // null: no file
    FilePlace top;
    int nColumns; // to which the row at the top was laid out
    int nMoved;   // rows up by the last key
    bool atEnd;   // the last row of the file is in view
    bool following;
};

void dropFileView(KULFILEVIEW& view);

// The box of the text: inside the frame, or left of the scroll bar.
struct FileBox {
    int nX, nY, nWidth, nHeight;
};

FileBox fileBox(const KULFILEVIEW& view);

// The columns to which the text is laid out.
int fileColumns(const KULFILEVIEW& view);

// No view is higher than this, whatever its record says.
constexpr int kMaxFileRows = 1000;

} // namespace kul

#endif
