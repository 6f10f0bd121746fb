// SPDX-License-Identifier: MIT
//
// What a program says of a component beside its record: that it is disabled, its hotkey, a pointer
// of the program's. Records and nodes may be the program's own, so this is kept with the dialog,
// for those components alone of which something was said.
#ifndef KUL_GUI_MARKS_HPP
#define KUL_GUI_MARKS_HPP

#include "chain.hpp"

namespace kul {

struct Mark {
    Mark* next;
    int nRef;
    bool disabled;
    int nHotkey; // 0 for none
    void* user;
};

// What was said of a component; null for nothing.
const Mark* findMark(const Dialog& dialog, int nRef);

// Forgets what was said of all of a dialog's components.
void freeMarks(Dialog& dialog);

} // namespace kul

#endif
