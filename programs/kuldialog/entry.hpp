// SPDX-License-Identifier: MIT
//
// Lines of text to enter, for the boxes that have some.
#ifndef KULDIALOG_ENTRY_HPP
#define KULDIALOG_ENTRY_HPP

#include "window.hpp"

namespace kuldialog {

// A line in an open window that takes nLimit characters, the cursor behind its text.
void createLine(const Window& window, int nRef, int nX, int nY, int nWidth, int nMask, int nLimit,
                const char* szText);

// Has a line with that text take nLimit characters, or as many as it has.
void setLimit(const Window& window, int nRef, int nLimit, const char* szText);

// The keys of a window with one line, as Window::onKey.
int lineKey(Window& window, int nKey);

// Its text, the library's own.
const char* entered(const Window& window, int nRef);

} // namespace kuldialog

#endif
