// SPDX-License-Identifier: MIT
//
// Where the letters of a text box stand in edition 2: in rows of as many columns as the box has
// inside. Nothing is skipped between the rows, so that each letter has a cell for the cursor.
//
//     ┌──────┐
//     │Grüße │      "Grüße aus 東京": a letter of two columns that does not fit goes to the next
//     │aus 東│      row whole
//     │京    │
//     └──────┘
//
// A text that is longer than the box scrolls: in one row by half a row at once, which costs the
// line less than a step with each key; in several by rows.
#ifndef KUL_UI_TEXTBOX_ROWS_HPP
#define KUL_UI_TEXTBOX_ROWS_HPP

#include "../gui/columns.hpp"
#include "../gui/draw.hpp"
#include "../kulgui.h"

namespace kul {

class TextRows {
public:
    explicit TextRows(const KULTEXTBOX& box);

    // The letter at a place; a mask shows it in one column. Behind the end of the text there are
    // bytes with nothing to show.
    Letter at(int nPlace) const;

    // The places of the letters behind and before a place; the one before is found on the way from
    // an earlier place.
    int after(int nPlace) const;
    int before(int nPlace, int nFrom) const;

    // The plain characters from one place on to another, each a letter of one column; none if the
    // first one is not so.
    std::string_view plain(int nFrom, int nTo) const;

    // Columns from one place to another; those beyond nMost need not be counted.
    int columns(int nFrom, int nTo, int nMost) const;

    // Where the row that begins at a place ends.
    int rowEnd(int nFirst) const;

    struct Cell {
        int nRow;
        int nColumn;
    };

    // The cell of a place when the view begins at nFirst. Behind a row that is full this is the
    // start of the next one, or the last cell where the box has no more rows.
    Cell cellOf(int nPlace, int nFirst) const;

    // Where the view has to begin so that the cursor is in it; nFirst if it can stay.
    int follow(int nFirst, int nCursor) const;

    // The rows of the box, whose view begins at nFirst, that a change at the cursor or behind it
    // can reach. A mark, or a letter in the place of a wide one, may go up to the row before.
    Rows reachable(int nCursor, int nFirst) const;

    // The place so many rows below the cursor, or above, in the same column, as far as there are
    // rows. nFirst begins the cursor's row or one above.
    int moved(int nCursor, int nRows, int nFirst) const;

    int length() const { return static_cast<int>(text_.size()); }
    int height() const { return nHeight_; }

private:
    static constexpr std::size_t kShort = 2000;

    struct Row {
        int nRow;
        int nFirst;
        int nEnd;
    };

    bool isSimple(int nFrom, int nTo) const;
    Row rowOf(int nPlace, int nFirst) const;
    bool fills(int nFirst) const;
    int followColumns(int nFirst, int nCursor) const;
    int followRows(int nFirst, int nCursor) const;

    std::string_view text_;
    int nWidth_;
    int nHeight_;
    bool masked_;
    bool simple_; // a short text that is all in ASCII: nothing is to be looked at twice
};

// How many letters a text has.
int lettersOf(std::string_view text);

// The place of a letter, counted from 0; the end of the text for the one behind the last. -1 for
// what is beyond.
int placeOfLetter(std::string_view text, int nLetter);

} // namespace kul

#endif
