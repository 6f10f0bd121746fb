// SPDX-License-Identifier: MIT
//
// Paints the cells of a row that differ from what the terminal shows there.
#ifndef KUL_GUI_PAINTER_HPP
#define KUL_GUI_PAINTER_HPP

#include <utility>

#include "cells.hpp"
#include "pen.hpp"

namespace kul {

// What differs in many rows may be painted in layers, all that looks the same first, then what has
// the next look: the ways are longer, but fewer colours are changed.
class Layers {
public:
    int now() const { return nNow_; }
    bool next() { return ++nNow_ < nKnown_; } // false after the last
    int of(const ScreenCell& cell);

    // Those that were asked for since this was called last, bit by bit.
    unsigned takeMet()
    {
        isAsked_ = false;
        return std::exchange(nMet_, 0U);
    }

private:
    static constexpr int kMost = 8; // the last one takes all that is left
    Style styles_[kMost];
    int nKnown_ = 0;
    int nNow_ = 0;
    unsigned nMet_ = 0;
    bool isAsked_ = false; // for a cell, and in which layer that is
    ScreenCell last_{};
    int nLast_ = 0;
};

class Painter {
public:
    // The row as it is to be, and as it is now; the cells of the layer that is due, null for all.
    Painter(Pen& pen, int nY, const ScreenRow& next, const ScreenRow& seen, Layers* layers)
        : pen_(pen), nY_(nY), layers_(layers), next_(next), seen_(seen)
    {
    }

    // False where only curses knows how to show a cell.
    bool paint();

    // The columns from the first to the last one that differ for curses; none if the last is lower.
    int firstChanged() const { return nFirst_; }
    int lastChanged() const { return nLast_; }

private:
    void findChanges();
    int layersTo(int nX) const;
    bool differs(int nX) const;
    int lastChange(int nX, int nEnd) const;
    int runOf(int nX) const;
    int runOfLines(int nX) const;
    bool styleOf(int nX, Style& style) const;
    bool isInHand(int nX) const;

    void approach(int nX);
    int erase(int nX, const Style& style);
    int repeat(int nX, char letter);
    int lineLetter(int nX, char (&bytes)[kMostBytes]);
    int letter(int nX, char (&bytes)[kMostBytes]);
    int paintFrom(int nX);
    int goOn(int nX);
    int goOnBlank(int nX);

    Pen& pen_;
    int nY_;
    Layers* layers_;
    int nFirst_ = 0;
    int nLast_ = -1;
    const ScreenRow& next_;
    const ScreenRow& seen_;
};

// Whether erasing leaves such a blank behind.
bool isErasable(const ScreenCell& cell, const Style& style);

} // namespace kul

#endif
