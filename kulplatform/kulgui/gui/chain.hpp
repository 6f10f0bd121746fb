// SPDX-License-Identifier: MIT
//
// The ring of dialogs, seen from inside: what the library keeps of a dialog beside the public
// record, and typed ways through the lists.
#ifndef KUL_GUI_CHAIN_HPP
#define KUL_GUI_CHAIN_HPP

#include "../kulgui.h"

namespace kul {

// What callbacks ask of a running loop.
struct Requests {
    bool leaving;   // it shall end
    bool refocused; // its handler shall return to it
    bool pressed;   // the button that has the focus then shall be clicked
};

struct Mark;

// A dialog's row or column on the screen: as the program wants it, and as the record was given it.
struct Wish {
    int nWanted;
    int nGiven;
};

// A cell of a window.
struct Cell {
    int nY;
    int nX;
    bool operator==(const Cell&) const = default;
};

// A dialog as it is allocated: the public record and what steers its loop.
struct Dialog : GUI {
    bool tabs;      // Tab and Escape leave every kind of component
    Requests asked; // of the loop that runs now, the innermost one
    int nPolled;    // the number of the last poll pass that looked at it
    int nDue;       // and of the last one that has to draw it
    int nDefault;   // number of the button for Enter, -1 for none
    int nCancel;    // and for Escape
    KULCALLBACK onKey;
    KULCALLBACK onResize;
    bool resized; // to be told by it
    Wish column;
    Wish row;
    PANEL* pnlSide; // the column of its shadow; winShadow is the row
    WINDOW* view;   // what its panel shows while it is larger than the screen, else null
    Cell part;      // where in its window that begins
    Cell followed;  // where the user was when that was last made to be seen
    WINDOW* kept;   // its picture during a change of size
    void* user;
    Mark* marks;
};

// Counts what looks for a dialog or changes a list, so that it can be told whether a program, in a
// turn of its own, has called anything that does.
inline unsigned nCalls = 0;

// The dialog of a chain; null for an unknown chain or one without.
Dialog* findDialog(int nChain);

// The dialog that a record is; null for a record of the program's own.
Dialog* findDialog(const GUI* thisGUI);

// Gives a chain a new dialog record, cleared and without focus. Null without memory.
Dialog* newDialog(CHAIN* thisChain);

// Frees what is in a dialog (components, items, windows) and leaves it empty.
void emptyDialog(GUI* thisGUI);

// Gives a component of a dialog the record of its kind. The kinds are the business of ui/, which
// has this function. 0, -1 for an unknown kind or without memory.
int attachUI(GUI& gui, UI& ui, int nType);

// Takes a chain out of the ring and frees it; all chains if it is the primary.
void destroyChain(CHAIN* thisChain);

// The chain after this one in a walk that starts at the primary; null at the end.
CHAIN* nextChain(const CHAIN* thisChain);

} // namespace kul

#endif
