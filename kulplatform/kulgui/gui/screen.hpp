// SPDX-License-Identifier: MIT
//
// One update of the terminal at a time. Drawing goes into windows; a Pass holds the update back
// until the outermost one ends, so that what a key or a poll redraws reaches the terminal once,
// and only the cells that differ. A Pause makes the terminal up to date and lets what runs inside
// it (a callback, the wait for a key) update it again by passes of its own. While more keys are at
// hand, what they change is not shown between them.
#ifndef KUL_GUI_SCREEN_HPP
#define KUL_GUI_SCREEN_HPP

#include "../kulgui.h"
#include "draw.hpp"

namespace kul {

class Pass {
public:
    // What a Later one has drawn is shown by the next update: the program's next call mostly takes
    // it away again, as when it closes one dialog after the other.
    enum class End { Update, Later };

    explicit Pass(End end = End::Update);
    ~Pass();
    Pass(const Pass&) = delete;
    Pass& operator=(const Pass&) = delete;

private:
    End end_;
};

// Who has a turn while it lives: the program, or nobody until a key comes.
enum class Turn { Program, Wait };

class Pause {
public:
    explicit Pause(Turn turn);
    ~Pause();
    Pause(const Pause&) = delete;
    Pause& operator=(const Pause&) = delete;

private:
    int nHeld_;
    Turn before_;
    unsigned nCalls_;
};

// Counts what programs did that dialogs may have to show: a turn in which one called the library,
// or drew by itself. A turn in which it did neither is not counted.
unsigned changes();
void noteChange();

// While it lives, this dialog stands above the other ones whenever the terminal is updated.
class OnTop {
public:
    explicit OnTop(int nChain);
    ~OnTop();
    OnTop(const OnTop&) = delete;
    OnTop& operator=(const OnTop&) = delete;
    int chain() const { return nChain_; }
    const OnTop* outer() const { return outer_; }

private:
    int nChain_;
    const OnTop* outer_;
};

// Says that what a block of a window shows has moved up by so many rows, or down for a number below
// 0, and not changed: the terminal may scroll them. kFar where it has, or shows other rows.
constexpr int kFar = INT_MAX / 2;
void rowsMoved(WINDOW* win, const Block& block, int nRows);

// Scrolls that block where the window may be drawn into in parts, and the terminal scrolls. What it
// was, in the window: the rows that came in and all beside it have to be drawn. Else nRows is 0.
struct Moved {
    WINDOW* win;
    Block block;
    int nRows;
};
Moved scrollMoved(WINDOW* win, bool inParts);

// Whether a loop or handler of this dialog waits below the one that runs now.
bool waitsBelow(int nChain);

// Where the component is that has the focus, and the user in it, told while it is drawn. In edition
// 2 the terminal's own cursor stands there from the next update on, as long as the cell is seen and
// the window is that of the dialog above all others. Of a dialog larger than the screen that part
// is shown, in both editions.
void showComponent(WINDOW* win, int nY, int nX, int nHeight, int nWidth);
void showCursorAt(WINDOW* win, int nY, int nX);

// Before the dialog in focus is drawn: nobody has told yet, and the cursor is hidden.
void forgetCursor();

// Before a window is deleted: the next one may have its address.
void forgetWindow(const WINDOW* win);

// A key that goes to a component: where it changes nothing it may move the part that is shown.
void noteKey(int nKey);

// Has the next update look at every cell.
void touchAll();

// Has the next update paint all of the terminal.
void paintAnew();

} // namespace kul

#endif
