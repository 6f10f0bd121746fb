// SPDX-License-Identifier: MIT
//
// The line to the terminal, below curses: its modes and flags, and bytes that go out. Signal
// handlers use leaveLine() and enterLine().
#ifndef KUL_GUI_LINE_HPP
#define KUL_GUI_LINE_HPP

#include <cstddef>
#include <cstdio>

namespace kul {

// Where the bytes go: what curses began with.
void setOutput(std::FILE* output);

// Writes all of it. Standard input does not block, and standard output mostly shares that: on a
// line that is held or slow this sleeps until it goes on. Only a line that is gone takes less.
void writeAll(const char* bytes, std::size_t size);

// While it lives, writing blocks: for what curses writes by itself, which would try again and
// again without a pause on a line that is held.
class Blocking {
public:
    Blocking();
    ~Blocking();
    Blocking(const Blocking&) = delete;
    Blocking& operator=(const Blocking&) = delete;

private:
    int nFlags_;
};

// Notes how the line is before it is opened (modes of the terminal, flags of standard input).
void noteOutside();

// Notes the same of the open line, with the bytes that leave the screen and enter it again; curses
// must have begun. The bytes depend on the size of the screen.
void noteInside();
void prepareBytes();

// Whether line feeds and tabs go out as they are.
struct Controls {
    bool feeds;
    bool tabs;
};
Controls passingControls();

// Whether leaving brings back what was there before, on a screen of its own.
bool hasOwnScreen();

// Ends curses' hold on the terminal. The screen is cleared in the terminal's own colours, unless
// leaving it brings back what was there before; or it keeps all but its last row, where the cursor
// goes.
void endScreen(bool keeps);

// Since it has done so curses would define pair 0 as well, which it refused before.
inline bool pairZeroTaken = false;

// The bytes that enter it again.
void enterScreen();

// Does something through curses of which the terminal gets nothing, neither bytes nor modes.
void takeQuietly(int (*take)());

// Sets standard input's flags as they were found.
void restoreFlags();

// Gives the terminal back as it was found, in less than half a second whatever the line does, and
// takes it again. Without curses: it does not know.
void leaveLine();
void enterLine();

} // namespace kul

#endif
