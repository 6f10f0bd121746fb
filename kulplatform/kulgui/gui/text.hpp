// SPDX-License-Identifier: MIT
//
// Text in rows: the one walk that wraps a text to a width, the scanners for lines that wrap at
// blanks only, and what texts measure. All of it is pure.
#ifndef KUL_GUI_TEXT_HPP
#define KUL_GUI_TEXT_HPP

#include <cstddef>
#include <optional>
#include <string_view>

#include "../kulgui.h"

namespace kul {

// A text and its length; empty for NULL.
std::string_view viewOf(const char* szText);

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
    bool fill();
    bool takeOther(bool full);
    bool isBrokenWord();

    const char* row_;   // where the next row starts; null after the last
    const char* ahead_; // the first character that was not looked at
    const char* space_; // the last space before that; what lies before row_ does not count
    std::ptrdiff_t width_;
    std::ptrdiff_t surplus_; // bytes from row_ to ahead_ that are more than columns
    const char* end_;        // of the text, when it is known
    const char* wordEnd_;    // behind the word that was looked at last
    bool wordBroken_;        // whether that breaks between letters
};

// Whether texts are laid out by columns: in edition 2 and in a locale, with a curses that knows
// wide characters. Else every byte is a column.
bool countsColumns();

// Columns of a text, whether these are bytes or not; INT_MAX at the most.
int widthOf(std::string_view text);

inline int widthOf(const char* szText)
{
    return widthOf(viewOf(szText));
}

// What of a text is in its first nColumns columns.
std::string_view cutText(const char* szText, long long nColumns);

// The same as ReturnLineStart and ReturnLineEnd, for a text whose length is known. A start outside
// of the text comes back as it is. Places are bytes, lengths are columns.
int lineStart(std::string_view text, int nStart, int nLength);
int lineEnd(std::string_view text, int nStart, int nLength);

} // namespace kul

#endif
