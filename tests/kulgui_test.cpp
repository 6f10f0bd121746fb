// SPDX-License-Identifier: MIT
//
// Dialogs as a program sees them: running, leaving, polling, and callbacks that pull the rug away.
#include "support/window_test.hpp"

#include <climits>
#include <string>

namespace {

using kultest::Rows;
using kultest::typeKeys;

constexpr int kPoll = 0; // a wait without a key

std::string events;
int nExecResult;

void note(const std::string& event)
{
    events += event + ' ';
}

class DialogTest : public kultest::WindowTest {
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        events.clear();
        nExecResult = 0;
        makeDialog(1);
    }

    static void addButton(int nRef, KULCALLBACK onClick = nullptr, KULCALLBACK onFocus = nullptr,
                          int nChain = 1)
    {
        ASSERT_EQ(kulbutton_create(nChain, nRef), 0);
        kulbutton_config(
            nChain, nRef, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, nRef * 10, 2, 8, 1, "B",
            onFocus ? onFocus
                    : [] { note("+" + std::to_string(GetCurrentSelection()->nUserInterface)); },
            [] { note("-" + std::to_string(GetCurrentSelection()->nUserInterface)); }, nullptr,
            onClick);
    }

    static std::string run(const std::vector<int>& keys, int nExpected,
                           const std::vector<KULCALLBACK>& actions = {})
    {
        events.clear();
        typeKeys(keys, actions);
        EXPECT_EQ(kulgui_exec(1), nExpected);
        return events;
    }
};

TEST_F(DialogTest, TabbingMovesTheFocusRoundTheList)
{
    for (int nRef : {1, 2, 3})
        addButton(nRef);
    EXPECT_EQ(run({KS_TAB, KS_ESC, KS_LEFT}, KUL_LEFT), "+1 -1 ") << "a button keeps these keys";
    kulgui_setTabbing(1, T);
    EXPECT_EQ(run({KS_TAB, KS_TAB, KS_TAB}, KUL_LEFT), "+1 -1 +2 -2 +3 -3 +1 -1 ");
    EXPECT_EQ(run({KS_ESC}, KUL_LEFT), "+1 -1 +3 -3 ");
    EXPECT_EQ(GetChain(1)->Pointer->nCurrentUI, 3);
    kulbutton_hide(1, 2);
    EXPECT_EQ(run({KS_TAB, KS_TAB}, KUL_LEFT), "+3 -3 +1 -1 +3 -3 ") << "hidden ones are skipped";
    EXPECT_EQ(kulgui_setTabbing(5, T), -1);
}

TEST_F(DialogTest, CallbacksSteerTheLoop)
{
    // clang-format off
    const struct {
        const char* name;
        KULCALLBACK onClick;
        int nResult;
        std::string_view events;
    } rows[] = {
        {"leaves after its onUnfocus", [] { EXPECT_EQ(kulgui_leave(1), 0); note("click"); },
         KUL_LEFT, "+1 click -1 "},
        {"moves the focus after making the dialog anew",
         [] {
             kulgui_destroy(1);
             kulgui_create(1);
             kulgui_config(1, 0, 0, 0, 0, "", 0, 0, 0, 40, 9, nullptr, nullptr, nullptr, nullptr,
                           nullptr);
             addButton(1);
             addButton(2);
             kulgui_setFocus(1, 2);
         },
         KUL_LEFT, "+1 -1 +2 -2 "},
        {"moves the focus", [] { EXPECT_EQ(kulgui_setFocus(1, 2), 0); }, KUL_LEFT, "+1 -1 +2 -2 "},
        {"cannot move it to nothing", [] { EXPECT_EQ(kulgui_setFocus(1, 9), -1); }, KUL_LEFT,
         "+1 -1 "},
        {"destroys the dialog", [] { kulgui_destroy(1); }, -10000, "+1 "},
        {"destroys everything", [] { kulgui_destroy(0); kulgui_create(0); }, -10000, "+1 "},
        {"configures the dialog anew",
         [] {
             kulgui_config(1, 0, 0, 0, 0, "", 0, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr,
                           nullptr);
         },
         -10000, "+1 "},
        {"resets the button",
         [] { kulexitbutton_config(1, 1, 0, 0, 0, 0, 0, 0, 0, 0, "", nullptr, nullptr, nullptr,
                                   nullptr); },
         KUL_LEFT, "+1 "},
        {"hides the dialog", [] { kulgui_hide(1); }, KUL_LEFT, "+1 -1 "},
        {"hides the button", [] { kulbutton_hide(1, 1); }, KUL_LEFT, "+1 -1 "},
        {"opens another one on top",
         [] {
             kulgui_create(2);
             kulgui_config(2, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, "", 0, 3, 3, 30, 8, nullptr,
                           nullptr, nullptr, nullptr, nullptr);
             addButton(7, nullptr, nullptr, 2);
             typeKeys({KS_ENTER});
             nExecResult = kulgui_exec(2);
             EXPECT_EQ(GetCurrentSelection()->nChain, 2);
         },
         KUL_LEFT, "+1 +7 -7 -1 "},
    };
    // clang-format on
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        addButton(1, row.onClick);
        addButton(2);
        EXPECT_EQ(run({KS_ENTER}, row.nResult), row.events);
        TearDown();
        SetUp();
    }
}

TEST_F(DialogTest, RequestsWithoutALoopAreForgotten)
{
    addButton(1);
    addButton(2);
    EXPECT_EQ(kulgui_leave(1), 0);
    EXPECT_EQ(kulgui_leave(9), -1);
    EXPECT_EQ(run({KS_ENTER, 'x'}, KUL_LEFT), "+1 -1 ");
    EXPECT_EQ(kulgui_setFocus(1, 2), 0);
    EXPECT_EQ(run({'x'}, KUL_LEFT), "+2 -2 ");
}

TEST_F(DialogTest, WithoutAFocusThatCanWait)
{
    EXPECT_EQ(run({}, -10000), "") << "no component";
    addButton(1);
    kulbutton_hide(1, 1);
    EXPECT_EQ(run({kPoll, 'x', kPoll}, KUL_LEFT), "") << "waits, and can be left";
    GetChain(1)->Pointer->nCurrentUI = 77;
    EXPECT_EQ(run({}, -10000), "");
    EXPECT_EQ(kulbutton_execKeys(1, 77), 10);
    EXPECT_EQ(kulgui_exec(9), -1);
}

TEST_F(DialogTest, PollsWhatIsShownOnceASecond)
{
    static int nPolls;
    nPolls = 0;
    makeDialog(2);
    GetChain(1)->Pointer->onPoll = [] { ++nPolls; };
    GetChain(2)->Pointer->onPoll = [] { note("hidden"); };
    addButton(1);
    const auto second = [] { kultest::advanceClock(1); };
    EXPECT_EQ(run({kPoll, kPoll, -2, kPoll, -2, -2, kPoll}, KUL_LEFT, {second}), "+1 -1 ");
    EXPECT_EQ(nPolls, 2) << "the wait after a pass starts the next second";
    EXPECT_EQ(Poll(0), 1);
    EXPECT_EQ(Poll(1), 0);
    kultest::advanceClock(-100);
    EXPECT_EQ(Poll(1), 0);
    kultest::advanceClock(1);
    EXPECT_EQ(Poll(1), 1) << "a clock that was set back does not stop the polling";
}

TEST_F(DialogTest, RequestsOfOtherCallbacks)
{
    // From a poll while no component can wait, and from onFocus and onUnfocus.
    addButton(1);
    addButton(2);
    addButton(3, nullptr, [] { kulgui_leave(1); });
    for (int nRef : {1, 2, 3})
        kulbutton_hide(1, nRef);
    GetChain(1)->Pointer->onPoll = [] {
        for (int nRef : {1, 2, 3})
            kulbutton_show(1, nRef);
        kulgui_setFocus(1, 2);
    };
    EXPECT_EQ(run({kPoll, -2, KS_ENTER}, KUL_LEFT, {[] { kultest::advanceClock(1); }}), "+2 -2 ");
    GetChain(1)->Pointer->onPoll = nullptr;
    GetChain(1)->Pointer->nCurrentUI = 3;
    EXPECT_EQ(run({'x'}, KUL_LEFT), "-3 ") << "left by its onFocus";
    auto& button = *static_cast<KULBUTTON*>(GetUIComponentByRef(1, 1)->Pointer);
    button.onUnfocus = [] { kulgui_setFocus(1, 2); };
    kulgui_setTabbing(1, T);
    kulgui_setFocus(1, 1);
    EXPECT_EQ(run({KS_ESC}, KUL_LEFT), "+1 +2 -2 ") << "not to the last one";
    button.onUnfocus = [] { kulgui_destroy(1); };
    typeKeys({KS_TAB});
    EXPECT_EQ(kulbutton_execKeys(1, 1), -10000);
}

TEST_F(DialogTest, PollsMayDestroyAnything)
{
    const auto second = [] { kultest::advanceClock(1); };
    for (const int nVictim : {0, 1, 2, 3}) {
        SCOPED_TRACE(nVictim);
        static int nDestroyed;
        nDestroyed = nVictim;
        for (int nChain : {2, 3}) {
            makeDialog(nChain);
            kulgui_show(nChain);
            GetChain(nChain)->Pointer->onPoll = [] { note("poll"); };
        }
        GetChain(2)->Pointer->onPoll = [] { kulgui_destroy(nDestroyed); };
        addButton(1);
        const bool survives = nVictim >= 2;
        EXPECT_EQ(run({kPoll, -2, kPoll}, survives ? KUL_LEFT : -10000, {second}),
                  std::string("+1 ") + (nVictim == 1 || nVictim == 2 ? "poll " : "") +
                      (survives ? "-1 " : ""));
        if (!GetPrimaryChain())
            kulgui_create(0);
        TearDown();
        SetUp();
    }
}

TEST_F(DialogTest, SelectionIsPutBackAfterACallback)
{
    const CURRENT before{1, 2, BUTTON, 3, 4, 5};
    SetCurrentSelection(&before);
    ExecOnFunction(nullptr);
    ExecOnFunction([] {
        const CURRENT other{9, 9, 9, 9, 9, 9};
        SetCurrentSelection(&other);
    });
    const CURRENT& after = *GetCurrentSelection();
    EXPECT_EQ(after.nChain, 1);
    EXPECT_EQ(after.nUserInterface, 2);
    EXPECT_EQ(after.nPosition, 3);
    EXPECT_EQ(GetCurrentOptionSelection(), 4);
    EXPECT_EQ(after.nSubSelect, 5);
    SetCurrentSelection(nullptr);
    EXPECT_EQ(GetCurrentComponentType(), BUTTON);
}

TEST_F(DialogTest, ExitFlags)
{
    EXPECT_EQ(GetControls()->bMoveToNextUI, F);
    const struct {
        int bExitGUI, bExitProgram, nResult;
    } rows[] = {{F, F, -1}, {T, F, 0}, {F, T, 0}, {T, T, 0}};
    for (const auto& row : rows) {
        const CONTROL controls{F, F, row.bExitGUI, row.bExitProgram};
        SetControls(&controls);
        SetExitGUI();
        EXPECT_EQ(ExitUIorGUIorChains(), row.nResult);
    }
}

TEST_F(DialogTest, FrameTitleAndShadow)
{
    const std::vector<kultest::Legend> legend = {{'.', RED_BLUE}, {'w', WHITE_RED}};
    GUI& gui = *GetChain(1)->Pointer;
    const auto top = [&](int nWidth, const char* szTitle) {
        makeDialog(2, nWidth, 3);
        GetChain(2)->Pointer->szTitle = szTitle;
        kulgui_show(2);
        const Rows rows = kultest::picture(window(2), 0, 0, 1, nWidth);
        kulgui_destroy(2);
        return rows[0];
    };
    EXPECT_EQ(top(12, "Title"), "┌──Title───┐") << "half of the width, half of the text, and one";
    EXPECT_EQ(top(12, "Titles"), "┌─Titles───┐");
    EXPECT_EQ(top(7, "Title"), "Title─┐") << "over the corner";
    EXPECT_EQ(top(6, "Title"), "Title┐");
    EXPECT_EQ(top(5, "Title"), "┌───┐") << "no room: not shown";
    EXPECT_EQ(top(5, nullptr), "┌───┐");
    gui.nColorStandard = WHITE_RED;
    gui.nBorder = NOBORDER;
    kulgui_show(1);
    EXPECT_EQ(kultest::colors(window(1), 0, 0, 1, 3, {{'w', WHITE_RED}}), (Rows{"www"}));
    EXPECT_EQ(kultest::picture(window(1), 1, 0, 1, 3), (Rows{"│  "})) << "a frame in any case";
    EXPECT_EQ(kultest::cellOf(gui.winShadow, 5, 5).pair, GREEN_YELLOW);
    short nForeground = -1;
    short nBackground = -1;
    pair_content(GREEN_YELLOW, &nForeground, &nBackground);
    EXPECT_EQ(nForeground, COLOR_BLACK);
    EXPECT_EQ(nBackground, COLOR_BLACK);
    EXPECT_EQ(panel_below(gui.pnlMain), gui.pnlShadow);
    int nY = 0;
    int nX = 0;
    getbegyx(gui.winShadow, nY, nX);
    EXPECT_EQ(nY, 1);
    EXPECT_EQ(nX, 1);
    kulgui_hide(1);
    EXPECT_TRUE(panel_hidden(gui.pnlMain) && panel_hidden(gui.pnlShadow));
    EXPECT_EQ(kulgui_show(9), 0);
    EXPECT_EQ(kulgui_hide(9), 0);
}

TEST_F(DialogTest, SizesAndPlacesOfEveryKind)
{
    const struct {
        int nX, nY, nWidth, nHeight;
    } rows[] = {{-5, -5, 10, 5},
                {0, 0, 0, 0},
                {0, 0, -3, -3},
                {79, 23, 80, 24},
                {1000, 1000, 10, 10},
                {0, 0, 100000, 100000},
                {INT_MAX, INT_MIN, INT_MAX, INT_MIN}};
    for (const auto& row : rows) {
        kulgui_create(2);
        kulgui_config(2, INT_MAX, INT_MIN, -1, 99, "far", 0, row.nX, row.nY, row.nWidth,
                      row.nHeight, nullptr, nullptr, nullptr, nullptr, nullptr);
        addButton(1, nullptr, nullptr, 2);
        kulbutton_config(2, 1, INT_MAX, INT_MIN, 77, 0, row.nX, row.nY, row.nWidth, 1, "text",
                         nullptr, nullptr, nullptr, nullptr);
        kulgui_show(2);
        EXPECT_NE(window(2), nullptr);
        kulgui_destroy(2);
    }
}

TEST_F(DialogTest, PrimaryBackground)
{
    GetChain(0)->Pointer->onPoll = nullptr;
    kulgui_show(0);
    EXPECT_EQ(kultest::picture(stdscr, 0, 0, 3, 10),
              (Rows{"primary   ", "──────────", "          "}));
    // The line has attributes made of the colour set's number, twice shifted, and no colour.
    const kultest::Cell line = kultest::cellOf(stdscr, 1, 79);
    EXPECT_EQ(line.glyph, "─");
    EXPECT_EQ(line.pair, 0);
    EXPECT_EQ(line.attributes, static_cast<attr_t>(BLACK_WHITE) << 16);
    EXPECT_EQ(kultest::cellOf(stdscr, 23, 79).pair, BLACK_WHITE);
    EXPECT_EQ(GetChain(0)->Pointer->nWidth, 80);
    EXPECT_EQ(GetWindowWidth(nullptr), -1);
    EXPECT_EQ(GetWindowHeight(stdscr), 24);
}

} // namespace
