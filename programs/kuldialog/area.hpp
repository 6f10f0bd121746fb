// SPDX-License-Identifier: MIT
//
// A text in a window, over its whole width. It scrolls, with a bar on the window's frame, when it
// has more rows than its room.
#ifndef KULDIALOG_AREA_HPP
#define KULDIALOG_AREA_HPP

#include "text.hpp"

namespace kuldialog {

class Area {
public:
    // Each row is a label; the first one's reference, and behind all of them the bar's.
    explicit Area(int nFirstRef) : ref_(nFirstRef) {}

    // Lays a text out, which the caller keeps, for a window of that width.
    void wrap(const char* szText, int nWindowWidth);
    int rows() const { return rows_.count(); }

    // Makes labels for so many rows of a dialog from row nY on, and shows the text's first ones.
    void create(int nChain, int nY, int nHeight);

    void showEnd(); // after wrap()
    void showStart();

    // Moves the text; false where the key is none for that or all is in view.
    bool scroll(int nKey);

private:
    void show();

    Rows rows_;
    int ref_;
    int chain_ = 0;
    int width_ = 0;
    int y_ = 0;
    int height_ = 0;
    int first_ = 0;
};

} // namespace kuldialog

#endif
