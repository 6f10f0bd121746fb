// SPDX-License-Identifier: MIT
#ifndef KUL_UI_FILEVIEW_HPP
#define KUL_UI_FILEVIEW_HPP

#include "../file/file_text.hpp"
#include "../kulgui.h"

namespace kul {

// No view is higher than this, whatever its record says.
constexpr int kMaxFileRows = 1000;

// The view is the start of its first row. Where the rows below it start is known as long as the
// file and the box are what they were.
struct FileView : KULFILEVIEW {
    using Public = KULFILEVIEW;
    FileText* text; // null: no file
    FilePlace top;
    int nColumns; // to which the rows were laid out
    int nRows;    // that were laid out
    bool atEnd;   // the last row of the file is in view
    bool following;
    FilePlace starts[kMaxFileRows + 1]; // of these rows, and the place behind them
};

// Whether the rows of the box are laid out.
bool isLaidOut(const FileView& view);

void dropFileView(KULFILEVIEW& view);

// The box of the text: inside the frame, or left of the scroll bar.
struct FileBox {
    int nX, nY, nWidth, nHeight;
};

FileBox fileBox(const KULFILEVIEW& view);

// The columns to which the text is laid out.
int fileColumns(const KULFILEVIEW& view);

// The rows of the box that are shown, at most, and at least one.
int fileRows(const KULFILEVIEW& view);

} // namespace kul

#endif
