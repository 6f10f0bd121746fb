// SPDX-License-Identifier: MIT
//
// What the terminal's description says, as far as an update has to know it. It is asked, never
// guessed from the terminal's name, and only descriptions in the codes of ECMA-48 are understood:
// placing the cursor, attributes and colours as parameters of one code, erasing.
#ifndef KUL_GUI_DESCRIPTION_HPP
#define KUL_GUI_DESCRIPTION_HPP

#include <cstdio>

#include "../kulgui.h"

namespace kul {

// What tigetstr() gives for a string that the terminal has.
bool isString(const char* szString);

// Begins curses on a terminal, null for the one that the environment names. Null for a terminal
// that is not known or cannot place its cursor.
SCREEN* openScreen(const char* szTerm, std::FILE* output, std::FILE* input);

// Lines of '+', '-' and '|' on the terminals that are opened from now on, or their own.
void drawAsciiLines(bool ascii);

// Attributes in the order in which a description numbers them, but for the second alphabet; italics
// are the last.
constexpr int kAttributes = 9;
constexpr unsigned kReverse = 4;

constexpr int kLetters = 128;

struct Codes {
    bool known;            // all that is needed is there, and ECMA-48; else nothing below counts
    bool waitsAtEdge;      // after a letter in the last column the cursor waits for the next one
    bool erasesInColor;    // what is erased gets the background colour
    bool hasDefaultColors; // as colours that can be chosen; else only by switching all off
    int nColors;           // that have codes
    bool placesColumn;
    bool placesRow;
    bool reversesFeed; // a row up by one code
    bool feeds;        // a row down by a line feed
    bool scrolls;      // and from the last row on, and back; some rows of the screen alone as well
    bool backspaces;
    bool tabs; // to each eighth column
    bool erasesCells;
    bool repeats;
    bool glyphs;                      // the locale has line drawing characters of its own ...
    bool glyphsOnly;                  // ... and the second alphabet cannot be had beside them
    bool fontIsAttribute;             // the second alphabet is switched like an attribute
    unsigned attributesWithoutColor;  // those that do not go together with colours
    char attributes[kAttributes][12]; // their parameters; empty: it shows nothing
    char clear[16];
    char linesOn[12]; // the second alphabet; empty: there is none
    char linesOff[12];
    char lineBytes[kLetters]; // the byte for each of its letters; 0: none
};

// Of the terminal that was opened last; not known before.
const Codes& codes();

// The parameter for a colour from 8 on, until the next call.
const char* colorParameter(bool foreground, int nColor);

// Notes the palette once colours have begun; whether it still is what it was, and the program has
// changed none of it.
void notePalette();
bool isPaletteKept();

} // namespace kul

#endif
