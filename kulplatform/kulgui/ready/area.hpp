// SPDX-License-Identifier: MIT
//
// A text in a dialog, over its whole width but for a blank at both sides. It scrolls, with a bar on
// the dialog's frame, when it has more rows than its room.
#ifndef KUL_READY_AREA_HPP
#define KUL_READY_AREA_HPP

#include "rows.hpp"

namespace kulready {

class Area {
public:
    // Each row is a label; the first one's reference, and the bar's.
    Area(int nFirstRef, int nBarRef) : nFirstRef_(nFirstRef), nBarRef_(nBarRef) {}

    // Lays a text out, which the caller keeps, for a dialog of that width.
    void wrap(const char* szText, int nDialogWidth);
    int rows() const { return rows_.count(); }

    // Makes labels for so many rows of a dialog from row nY on, and shows the text.
    void create(int nChain, int nY, int nHeight);

    // Shows the text anew, after wrap(): its end, or what was in view before.
    void show(bool toEnd);
    bool isWhole() const { return whole_; } // whether there was memory for all of it
    bool isAtEnd() const { return nFirst_ >= last(); }

    // Moves the text; false where the key is none for that or all is in view.
    bool scroll(int nKey);

private:
    int last() const; // that can be the first one in view

    Rows rows_;
    int nFirstRef_;
    int nBarRef_;
    int nChain_ = 0;
    int nWidth_ = 0;
    int nY_ = 0;
    int nHeight_ = 0;
    int nFirst_ = 0;
    bool whole_ = true;
};

} // namespace kulready

#endif
