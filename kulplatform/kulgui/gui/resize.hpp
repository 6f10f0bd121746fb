// SPDX-License-Identifier: MIT
//
// A terminal of another size.
#ifndef KUL_GUI_RESIZE_HPP
#define KUL_GUI_RESIZE_HPP

namespace kul {

struct Size {
    int nLines;
    int nColumns;
    bool operator==(const Size&) const = default;
};

// What the environment or the terminal says; 24 rows and 80 columns where neither does.
Size terminalSize();

// Whether there is memory for a screen of this size; curses would end the process, or be left
// between two sizes.
bool hasMemoryFor(Size size);

// Gives curses' screen, which has just begun, the terminal's size.
void startSize();

// Makes the screen as large as the terminal is now, and brings the dialogs into it. True when that
// changed anything; the next update paints all of it, and the next runOnResize() tells the program.
bool fitScreen();

// Runs the program's callbacks for a change of size, if there was one. Their drawing is held back
// like what comes before and after.
void runOnResize();

// Whether the size is to be looked at: a signal told, or a second is over.
bool isSizeDue();

} // namespace kul

#endif
