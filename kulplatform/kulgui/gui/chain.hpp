// SPDX-License-Identifier: MIT
//
// The ring of dialogs, seen from inside: what the library keeps of a dialog beside the public
// record, and typed ways through the lists.
#ifndef KUL_GUI_CHAIN_HPP
#define KUL_GUI_CHAIN_HPP

#include "../kulgui.h"

namespace kul {

// A dialog as it is allocated: the public record and what steers its loop.
struct Dialog : GUI {
    bool tabs;      // Tab and Escape leave every kind of component
    bool leaving;   // the running loop shall end
    bool refocused; // the running handler shall return to the loop
    bool polled;    // in the poll pass that runs now
    bool due;       // to be drawn at its end
    int nLoops;     // loops and handlers of this dialog that run now, one inside the other
};

// The dialog of a chain; null for an unknown chain or one without.
Dialog* findDialog(int nChain);

// Gives a chain a new dialog record, cleared and without focus. Null without memory.
Dialog* newDialog(CHAIN* thisChain);

// Frees what is in a dialog (components, items, windows) and leaves it empty.
void emptyDialog(GUI* thisGUI);

// Takes a chain out of the ring and frees it; all chains if it is the primary.
void destroyChain(CHAIN* thisChain);

// The chain after this one in a walk that starts at the primary; null at the end.
CHAIN* nextChain(const CHAIN* thisChain);

} // namespace kul

#endif
