// SPDX-License-Identifier: MIT
//
// The next letter of a text: its bytes, its columns on the screen, and what is shown for it. A text
// is in the encoding of the program's locale, and the C library knows the letters and their widths.
//
//     for (std::string_view rest = text; !rest.empty();) {
//         const kul::Letter letter = kul::nextLetter(rest);
//         ...
//         rest.remove_prefix(letter.nBytes);
//     }
//
// All of this is pure: no window, no edition.
#ifndef KUL_GUI_COLUMNS_HPP
#define KUL_GUI_COLUMNS_HPP

#include <cstddef>
#include <string_view>

namespace kul {

// What is shown for what cannot be shown.
constexpr wchar_t kStandIn = L'?';

// A letter, and the marks that a cell holds with it, at the most.
constexpr int kMostInCell = 5;

// A letter together with the combining marks behind it, which are never parted from it.
//
// The stand-in of one column takes the place of an invalid byte, of a character that the locale
// cannot print (C1 as well), of a mark without a letter before it (a blank is none), and of a mark
// that turns the direction of writing. What has neither width nor picture is left out: it goes with
// the letter before it, or stands alone with no column and nothing to show.
struct Letter {
    std::size_t nBytes; // 1 at the least
    int nColumns;       // 0, 1 or 2
    // What a cell is given, ended by 0: itself, the stand-in, or nothing. A control character below
    // 32, or 127, is itself in one column: who draws says what shows for it.
    wchar_t shown[kMostInCell + 1];
};

constexpr bool isAscii(char character)
{
    return static_cast<unsigned char>(character) < 0x80;
}

// Whether every byte is below 128, so that each is a letter of one column.
bool isAscii(std::string_view text);

// The first letter of a text that is not empty, by the C library.
Letter decodeLetter(std::string_view rest, int nWidth);

// The first letter of a text that is not empty, for a row of nWidth columns: a letter that is wider
// than the row is the stand-in. Of bytes that are cut off behind a text, as from a file, the last
// ones may so be no letter: give some more than the row needs.
inline Letter nextLetter(std::string_view rest, int nWidth = 2)
{
    if (isAscii(rest.front()) && (rest.size() == 1 || isAscii(rest.data()[1])))
        return {1, 1, {static_cast<wchar_t>(rest.front())}};
    return decodeLetter(rest, nWidth);
}

// Bytes of the combining marks, and of what is left out, at the front of a text. They belong to the
// letter before it.
std::size_t marksAt(std::string_view text);

// Columns of a text; INT_MAX at the most.
int columnsOf(std::string_view text);

// The letters at the front of a text that fit into a row of nColumns columns.
std::string_view fitting(std::string_view text, int nColumns);

} // namespace kul

#endif
