// SPDX-License-Identifier: MIT
//
// Paints the cells of a row that differ from what the terminal shows there.
#ifndef KUL_GUI_PAINTER_HPP
#define KUL_GUI_PAINTER_HPP

#include "cells.hpp"
#include "pen.hpp"

namespace kul {

class Painter {
public:
    // The row as it is to be, and as it is now.
    Painter(Pen& pen, int nY, const ScreenRow& next, const ScreenRow& seen)
        : pen_(pen), nY_(nY), next_(next), seen_(seen)
    {
    }

    // False where only curses knows how to show a cell.
    bool paint();

    // The columns from the first to the last one that differ for curses; none if the last is lower.
    int firstChanged() const { return nFirst_; }
    int lastChanged() const { return nLast_; }

private:
    bool differs(int nX) const;
    int lastChange(int nX, int nEnd) const;
    int runOf(int nX) const;
    int runOfLines(int nX) const;
    bool isInHand(int nX) const;

    void approach(int nX);
    int erase(int nX, const Style& style);
    int repeat(int nX, char letter);
    int lineLetter(int nX, char (&bytes)[kMostBytes]);
    int letter(int nX, char (&bytes)[kMostBytes]);
    int paintFrom(int nX);

    Pen& pen_;
    int nY_;
    int nFirst_ = 0;
    int nLast_ = -1;
    const ScreenRow& next_;
    const ScreenRow& seen_;
};

// Whether erasing leaves such a blank behind.
bool isErasable(const ScreenCell& cell, const Style& style);

} // namespace kul

#endif
