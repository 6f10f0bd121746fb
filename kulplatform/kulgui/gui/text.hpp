// SPDX-License-Identifier: MIT
//
// Text in rows: the one walk that wraps a text to a width, the scanners for lines that wrap at
// blanks only, and the drawing of a row. All but the drawing is pure.
#ifndef KUL_GUI_TEXT_HPP
#define KUL_GUI_TEXT_HPP

#include <cstddef>
#include <optional>
#include <string_view>

#include "../kulgui.h"

namespace kul {

// Gives a text row by row, each as what it shows. The text must stay while the walk goes on.
//
//     kul::RowWalk walk(szText, nWidth);
//     while (const auto row = walk.next()) ...
//
// There are no rows for NULL or for a width below 1. No character is looked at twice, so a walk
// takes time by the length of the text, whatever the width.
class RowWalk {
public:
    RowWalk(const char* szText, int nWidth);
    std::optional<std::string_view> next();

private:
    const char* row_;   // where the next row starts; null after the last
    const char* ahead_; // the first character that was not looked at
    const char* space_; // the last space before that; what lies before row_ does not count
    std::ptrdiff_t width_;
};

// Draws a character a column from nX on, in runs. The cells are those that a print of its own for
// each character gives: what takes two cells ("^A") loses the second one to the next character, a
// tab blanks the cells up to its stop, and what starts outside of the window is not printed.
void drawText(WINDOW* win, int nY, int nX, std::string_view text);

// Prints a text whole, but for what does not fit into the window's row.
void printOnRow(WINDOW* win, int nY, int nX, const char* szText);

// A text and its length; empty for NULL.
std::string_view viewOf(const char* szText);

// The same as ReturnLineStart and ReturnLineEnd, for a text whose length is known. A start outside
// of the text comes back as it is.
int lineStart(std::string_view text, int nStart, int nLength);
int lineEnd(std::string_view text, int nStart, int nLength);

} // namespace kul

#endif
