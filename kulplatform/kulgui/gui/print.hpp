// SPDX-License-Identifier: MIT
//
// Texts into windows. Plain characters go as finished cells, whatever else letter by letter, and
// never a byte to curses that it would keep and put before what is printed next.
#ifndef KUL_GUI_PRINT_HPP
#define KUL_GUI_PRINT_HPP

#include <climits>
#include <string_view>

#include "draw.hpp"

namespace kul {

// Draws a row of a text, a letter at its columns from nX on, for a box of nWidth columns. Where
// texts are bytes, each is a column: what takes two cells ("^A") loses the second one to the next
// character, a tab blanks the cells up to its stop, and what starts outside of the window is not
// printed.
void drawText(WINDOW* win, int nY, int nX, std::string_view text, int nWidth = INT_MAX);

// Prints a text from a place on. What does not fit into the window's row goes on in the next one in
// edition 1; in edition 2 what lies outside of the window is cut.
void print(WINDOW* win, int nY, int nX, const char* szText);

// The same, cut in both editions.
void printOnRow(WINDOW* win, int nY, int nX, const char* szText);

// What shows for control characters, and for bytes above 127 where texts are bytes.
enum class ShownControls {
    InOneColumn, // as curses has it, "^A"; what follows covers all but the first cell
    Whole,       // as curses has it, what follows stands behind it
    Skipped,     // nothing, in one column; a byte above 127 has its stand-in
};

// Prints a text letter by letter up to column nEnd, for a box of nWidth columns; what lies outside
// of the window, whole or in part, is cut.
void printLetters(WINDOW* win, int nY, int nX, int nEnd, std::string_view text,
                  ShownControls controls, int nWidth = INT_MAX);

} // namespace kul

#endif
