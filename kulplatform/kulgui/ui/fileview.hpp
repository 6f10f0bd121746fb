// SPDX-License-Identifier: MIT
#ifndef KUL_UI_FILEVIEW_HPP
#define KUL_UI_FILEVIEW_HPP

#include "file_text.hpp"

#include "../kulgui.h"

namespace kul {

// The view is the start of its first row; rows are laid out when they are drawn.
struct FileView : KULFILEVIEW {
    FileText* text; // null: no file
    FilePlace top;
    int nColumns; // to which the row at the top was laid out
    bool atEnd;   // the last row of the file is in view
    bool following;
};

void dropFileView(FileView& view);

} // namespace kul

#endif
