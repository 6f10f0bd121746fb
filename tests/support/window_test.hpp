// SPDX-License-Identifier: MIT
//
// Tests that draw into windows and read them back, without a terminal: curses writes to nothing,
// keys come from a script and the time from a clock that only the test moves.
#ifndef KUL_TESTS_WINDOW_TEST_HPP
#define KUL_TESTS_WINDOW_TEST_HPP

#include <gtest/gtest.h>

#include <climits>
#include <clocale>
#include <string>
#include <type_traits>
#include <vector>

#include "kulgui.h"

namespace kultest {

using Rows = std::vector<std::string>;

// What a cell shows: its character in the locale (line drawing as Unicode, nothing for the second
// half of a wide one), its colour pair and attributes without both.
struct Cell {
    std::string glyph;
    int pair;
    attr_t attributes;
};

Cell cellOf(WINDOW* win, int y, int x);

// The characters of a rectangle of a window. A wide one that lost a half makes its row longer or shorter.
Rows picture(WINDOW* win, int y, int x, int height, int width);

// A UTF-8 locale and an edition while it lives; tests begin and end in the C locale and edition 1.
struct InColumns {
    explicit InColumns(int nEdition = 2)
    {
        EXPECT_NE(std::setlocale(LC_ALL, "C.UTF-8"), nullptr);
        kulgui_setEdition(nEdition);
    }
    ~InColumns()
    {
        std::setlocale(LC_ALL, "C");
        kulgui_setEdition(1);
    }
};

// What stands for a colour pair in a picture of colours; reverse cells are upper case.
struct Legend {
    char letter;
    int pair;
};

// The colours of a rectangle; a pair that is not in the legend shows as '?'.
Rows colors(WINDOW* win, int y, int x, int height, int width, const std::vector<Legend>& legend);

// Keys that the next handlers get, one a wait; 0 is a wait without a key, and something to do in
// place of one is counted down from -2 on. After the last one the dialog in focus is asked to end.
// Each key may cost one update of the terminal; more is a failure.
void typeKeys(const std::vector<int>& keys, const std::vector<KULCALLBACK>& actions = {});

// How often the library has written to the terminal; what counts is the difference.
int updates();

// Moves the clock that the library reads.
void advanceClock(int seconds);

// While it lives, the allocation after the next nGood ones fails, and all later ones.
struct FailingMemory {
    static inline int nGoodAllocations = INT_MAX;
    explicit FailingMemory(int nGood) { nGoodAllocations = nGood; }
    ~FailingMemory() { nGoodAllocations = INT_MAX; }
};

// Looks out for memory until it is freed with all of its bytes cleared.
void watchFree(const void* memory, std::size_t nBytes);
bool wasFreedClear();

// While it lives, the terminal has no colours.
struct NoColors {
    static inline bool here = false;
    NoColors() { here = true; }
    ~NoColors() { here = false; }
};

// 80 x 24 cells, a primary dialog 0 in its default colours, and nothing else. Frees all after.
class WindowTest : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    // Adds dialog nChain at the top left corner, standard colours, shown without frame drawn yet.
    static GUI* makeDialog(int nChain, int nWidth = 40, int nHeight = 14);

    // The window of a dialog.
    static WINDOW* window(int nChain);
};

// Dialog 1 with its window full of dots, so that what is drawn shows, blanks too.
class CanvasTest : public WindowTest {
protected:
    CanvasTest(int nWidth, int nHeight) : nWidth_(nWidth), nHeight_(nHeight) {}
    void SetUp() override;

    // The dots again, over all that was drawn.
    void clear();

    // Draws the dialog's items, and gives a rectangle (or all) as one text, a bar after each row.
    std::string drawn(int nY = 0, int nX = 0, int nHeight = 0, int nWidth = 0);

    // Its colours: 'b' RED_BLUE, 'w' RED_WHITE, 'c' RED_CYAN, '-' none, upper case for reverse.
    std::string shades(int nY, int nX, int nHeight, int nWidth) const;

    GUI* gui_ = nullptr;
    WINDOW* win_ = nullptr;

private:
    int nWidth_;
    int nHeight_;
};

// One of this size.
template <int nWidth, int nHeight>
class Canvas : public CanvasTest {
protected:
    Canvas() : CanvasTest(nWidth, nHeight) {}
};

// The component that a ComponentTest is about, in dialog 1.
constexpr int kRef = 5;

template <typename Record>
Record& record()
{
    return *static_cast<Record*>(GetUIComponentByRef(1, kRef)->Pointer);
}

struct Callbacks {
    KULCALLBACK onFocus, onUnfocus, onSelect, onClick; // onSelect is a text box's onKey
};

// Adds a component of any kind to dialog 1, sets one up anew, and adds an element where it has them.
// 0, -1 when it is refused.
void addComponent(int nType, int nRef, int nX, int nY, const Callbacks& on = {});
int configComponent(int nRef, int nX, int nY, const Callbacks& on = {});
int addElement(int nRef, const char* szText, int nEnable = 1, KULCALLBACK onSelect = nullptr,
               KULCALLBACK onClick = nullptr);

// What a call for a component or an item gives; all else that it takes is 3, a text or nothing.
template <typename Result, typename... More>
Result ask(Result (*call)(int, int, More...), int nChain, int nRef)
{
    [[maybe_unused]] const auto some = []<typename Type>(Type none) {
        if constexpr (std::is_same_v<Type, int>)
            return 3;
        else if constexpr (std::is_same_v<Type, const char*>)
            return "x";
        else
            return none;
    };
    return call(nChain, nRef, some(More{})...);
}

// Whether all of these calls give -1 or null.
template <auto... Calls>
bool refuse(int nChain, int nRef)
{
    const auto refused = [](auto result) {
        if constexpr (std::is_pointer_v<decltype(result)>)
            return !result;
        else
            return result == -1;
    };
    return (refused(ask(Calls, nChain, nRef)) && ...);
}

// What callbacks noted, by itself or with what was selected: "focus0 click2 ".
inline std::string events;

inline void say(const std::string& event)
{
    events += event + ' ';
}

inline void note(const char* event)
{
    say(event + std::to_string(GetCurrentSelection()->nSelect));
}

// Runs dialog 1 with these keys, and gives what was noted.
std::string run(const std::vector<int>& keys, int nExpected = KUL_LEFT, const std::vector<KULCALLBACK>& actions = {});

// Dialog 1, shown and without components.
class ComponentTest : public WindowTest {
protected:
    void SetUp() override;

    // The dialog anew, and no events.
    void renew();

    // Gives the component these keys; what its handler returns.
    static int press(const std::vector<int>& keys, const std::vector<KULCALLBACK>& actions = {});

    static Rows shown(int y, int x, int height, int width);

    // Its standard colours: '.' background, 'f' focused, 'u' unfocused, 'd' disabled.
    static Rows shades(int y, int x, int height, int width);
};

} // namespace kultest

#endif
