// SPDX-License-Identifier: MIT
//
// A file's text as rows of a given width, downwards and upwards from any place. Lines wrap at
// blanks; a word that is wider than a row is cut where the row is full. The blanks at which a line
// wraps are not shown, everything else is.
//
// How a row is laid out follows from the bytes from its start on, and where rows start follows from
// the start of the line (or piece of a line), so that all ways to a row give the same one.
#ifndef KUL_FILE_FILE_ROWS_HPP
#define KUL_FILE_FILE_ROWS_HPP

#include "../gui/columns.hpp"
#include "file_text.hpp"

namespace kul {

class FileRows {
public:
    // Wider rows wrap there.
    static constexpr int kMaxColumns = 1000;

    // nColumns is taken into 1..kMaxColumns.
    FileRows(FileText& text, int nColumns);

    struct Row {
        FilePlace start;
        FilePlace end;  // behind the last byte that is shown
        FilePlace next; // start of the row below
    };

    // The row that starts at a place; without a next one (next is start) at the end of the file.
    Row row(FilePlace start);

    // The letter at a place before end, in that column of a row. A tab is a blank of as many
    // columns as it takes, and a control character is the stand-in. In edition 1 a letter is one
    // character, and the stand-in where that has no column of its own.
    Letter letter(FilePlace place, FilePlace end, int nColumn);

    // The bytes from a place to an end that are a letter and a column each, as far as they lie
    // together; they stay until the next call.
    std::string_view plainFrom(FilePlace place, FilePlace end);

    // Start of the row that holds a place; the last one for places behind the end.
    FilePlace rowOf(FilePlace place);

    // Start of the row that is nRows below or above one, or as many as there are.
    FilePlace down(FilePlace start, int nRows);
    FilePlace up(FilePlace start, int nRows);

private:
    // A row and what lineStart looks at behind it, and what a last tab is too long.
    static constexpr int kCells = 2 * kMaxColumns + 1 + 8;

    // What is looked at to know a letter; marks that lie behind are none of this letter.
    static constexpr int kWindow = 64;

    template <bool (*isOfKind)(char)>
    std::string_view runFrom(FilePlace place, FilePlace end);
    bool needsMore(int nCells) const;
    Row wrappedRow(FilePlace start, FilePlace edge);
    FilePlace placeOf(int nCell, int nCells, FilePlace start, FilePlace end) const;
    int shownCells(int nCells) const;
    std::string_view window(FilePlace place, FilePlace end);
    int lineEndAt(FilePlace place, FilePlace end);
    void addCells(int& nCells, FilePlace nPlace, int nColumns, bool blank);

    FileText& text_;
    int nColumns_;
    bool marks_; // whether letters take the marks behind them along
    char window_[kWindow];
    char cells_[kCells]; // one character each, however it is encoded
    int places_[kCells]; // first byte of the cell's letter, from the row's start; -1: as before
};

} // namespace kul

#endif
