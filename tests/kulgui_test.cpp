// SPDX-License-Identifier: MIT
//
// Dialogs as a program sees them: running, leaving, polling, and callbacks that pull the rug away.
#include "support/window_test.hpp"

#include "gui/resize.hpp"
#include "gui/screen.hpp"

#include <climits>
#include <cstdlib>
#include <cstring>
#include <string>
#include <utility>

namespace {

using namespace kultest;

constexpr int kPoll = 0;    // a wait without a key
constexpr int kSecond = -2; // a second passes

// Configures a dialog in colours that are not the default ones; it has no components then.
void configure(int nChain, int nX = 0, int nWidth = 40)
{
    kulgui_config(nChain, 0, 0, 0, 0, "", 0, nX, 0, nWidth, 9, nullptr, nullptr, nullptr, nullptr, nullptr);
}

// Dialog 1, and buttons that note when they take and lose the focus.
class DialogTest : public WindowTest {
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        events.clear();
        makeDialog(1);
    }

    static void addButton(int nRef, KULCALLBACK onClick = nullptr, int nChain = 1)
    {
        ASSERT_EQ(kulbutton_create(nChain, nRef), 0);
        kulbutton_config(
            nChain, nRef, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, nRef * 10, 2, 8, 1, "B",
            [] { say("+" + std::to_string(GetCurrentSelection()->nUserInterface)); },
            [] { say("-" + std::to_string(GetCurrentSelection()->nUserInterface)); }, nullptr, onClick);
    }
    static KULBUTTON& button(int nRef) { return *static_cast<KULBUTTON*>(GetUIComponentByRef(1, nRef)->Pointer); }

    static std::string run(const std::vector<int>& keys, int nExpected)
    {
        return kultest::run(keys, nExpected, {[] { advanceClock(1); }});
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
        {"leaves after its onUnfocus", [] { EXPECT_EQ(kulgui_leave(1), 0); say("click"); },
         KUL_LEFT, "+1 click -1 "},
        {"leaves, and says where to begin the next time", [] { kulgui_leave(1); kulgui_setFocus(1, 2); },
         KUL_LEFT, "+1 -1 "},
        {"moves the focus after making the dialog anew",
         [] {
             kulgui_destroy(1);
             kulgui_create(1);
             configure(1);
             addButton(1);
             addButton(2);
             kulgui_setFocus(1, 2);
         },
         KUL_LEFT, "+1 -1 +2 -2 "},
        {"moves the focus", [] { EXPECT_EQ(kulgui_setFocus(1, 2), 0); }, KUL_LEFT, "+1 -1 +2 -2 "},
        {"cannot move it to nothing", [] { EXPECT_EQ(kulgui_setFocus(1, 9), -1); },
         KUL_LEFT, "+1 -1 "},
        {"destroys everything", [] { kulgui_destroy(0); kulgui_create(0); }, -10000, "+1 "},
        {"leaves, and runs the dialog again before it is left",
         [] {
             kulgui_leave(1);
             button(1).onClick = [] { say("click"); kulgui_leave(1); };
             typeKeys({KS_ENTER, KS_ENTER});
             kulgui_exec(1);
         },
         KUL_LEFT, "+1 +1 click -1 -1 "},
        {"leaves, and gives another component the keys before that",
         [] { kulgui_leave(1); typeKeys({KS_ENTER}); kulbutton_execKeys(1, 2); },
         KUL_LEFT, "+1 +2 -2 -1 "},
        {"resets the button",
         [] { kulexitbutton_config(1, 1, 0, 0, 0, 0, 0, 0, 0, 0, "", nullptr, nullptr, nullptr,
                                   nullptr); },
         KUL_LEFT, "+1 "},
        {"draws the dialog as it is", [] { ShowUIColors(); }, KUL_LEFT, "+1 -1 "},
        {"opens another one on top",
         [] {
             kulgui_create(2);
             configure(2, 3, 30);
             addButton(7, [] {
                 EXPECT_EQ(GetActiveChain(), 2);
                 EXPECT_EQ(cellOf(window(1), 3, 12).pair, RED_WHITE) << "unfocused";
             }, 2);
             typeKeys({KS_ENTER});
             EXPECT_EQ(kulgui_exec(2), KUL_LEFT);
             EXPECT_EQ(GetCurrentSelection()->nChain, 2);
             EXPECT_EQ(GetActiveChain(), 1);
             typeKeys({kPoll});
         },
         KUL_LEFT, "+1 +7 -7 -1 "},
    };
    // clang-format on
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        addButton(1, row.onClick);
        addButton(2);
        EXPECT_EQ(run({KS_ENTER}, row.nResult), row.events);
        if (GetChain(2)) {
            EXPECT_EQ(panel_above(GetChain(2)->Pointer->pnlMain), GetChain(1)->Pointer->pnlShadow)
                << "the one in focus is on top again";
        }
        TearDown();
        SetUp();
    }
}

TEST_F(DialogTest, RequestsOfOtherCallbacks)
{
    for (int nRef : {1, 2, 3})
        addButton(nRef);
    EXPECT_EQ(kulgui_leave(1), 0);
    EXPECT_EQ(kulgui_leave(9), -1);
    EXPECT_EQ(run({KS_ENTER, 'x'}, KUL_LEFT), "+1 -1 ") << "forgotten: no loop was there to leave";
    EXPECT_EQ(kulgui_setFocus(1, 2), 0);
    EXPECT_EQ(run({'x'}, KUL_LEFT), "+2 -2 ");

    // From a poll while no component can wait, and from onFocus and onUnfocus.
    for (int nRef : {1, 2, 3})
        kulbutton_hide(1, nRef);
    GetChain(1)->Pointer->onPoll = [] {
        for (int nRef : {1, 2, 3})
            kulbutton_show(1, nRef);
        kulgui_setFocus(1, 2);
    };
    EXPECT_EQ(run({kPoll, kSecond, KS_ENTER}, KUL_LEFT), "+2 -2 ");
    GetChain(1)->Pointer->onPoll = nullptr;
    button(3).onFocus = [] { kulgui_leave(1); };
    kulgui_setFocus(1, 3);
    EXPECT_EQ(run({'x'}, KUL_LEFT), "-3 ");
    button(1).onUnfocus = [] { kulgui_setFocus(1, 2); };
    kulgui_setTabbing(1, T);
    kulgui_setFocus(1, 1);
    EXPECT_EQ(run({KS_ESC}, KUL_LEFT), "+1 +2 -2 ") << "not to the last one";
    button(1).onUnfocus = [] { kulgui_destroy(1); };
    typeKeys({KS_TAB});
    EXPECT_EQ(kulbutton_execKeys(1, 1), -10000);
}

TEST_F(DialogTest, WithoutAFocusThatCanWait)
{
    EXPECT_EQ(run({}, -10000), "") << "no component";
    addButton(1);
    kulbutton_hide(1, 1);
    EXPECT_EQ(run({kPoll, 'x', kPoll}, KUL_LEFT), "") << "waits, and can be left";
    GetChain(1)->Pointer->nCurrentUI = 77;
    EXPECT_EQ(run({}, -10000), "");
}

// Its loop goes on with the keys that no component took, and takes none once it is to end.
TEST_F(DialogTest, WithComponentsThatDoNotWait)
{
    kuloptions_create(1, 1);
    kuloptions_config(1, 1, 0, 0, 0, 1, 1, 20, 4, BORDER, 0, 0, nullptr, nullptr, nullptr,
                      [] { kuloptions_hide(1, 1); });
    kuloptions_addElement(1, 1, "one", 1, nullptr, nullptr);
    addButton(2);
    addButton(3);
    EXPECT_EQ(run({KS_ENTER, 'x', KS_TAB, 'x'}, KUL_LEFT), "+2 -2 ");
    kulgui_setFocus(1, 1);
    EXPECT_EQ(run({KS_ESC, 'x'}, KUL_LEFT), "+3 -3 ");
    const KULCALLBACK ends[] = {[] { kulgui_leave(1); }, [] { kulgui_destroy(1); }};
    for (const KULCALLBACK end : ends) {
        TearDown();
        SetUp();
        addButton(1);
        button(1).onFocus = end;
        makeDialog(2);
        kulgui_show(2);
        GetChain(2)->Pointer->onPoll = [] { say("poll"); };
        const bool left = end == ends[0];
        EXPECT_EQ(run({kSecond, 'x'}, left ? KUL_LEFT : -10000), left ? "-1 " : "")
            << "no wait for a dialog that is over";
    }
}

TEST_F(DialogTest, PollsWhatIsShownOnceASecond)
{
    makeDialog(2);
    GetChain(1)->Pointer->onPoll = [] { say("poll"); };
    GetChain(2)->Pointer->onPoll = [] { say("not shown"); };
    for (int nChain : {3, 4}) {
        makeDialog(nChain);
        kulgui_show(nChain);
    }
    GetChain(3)->Pointer->onPoll = [] { kulgui_hide(3); };
    GetChain(4)->Pointer->onPoll = [] {
        kulbox_create(4, 1);
        kulbox_config(4, 1, RED_CYAN, 1, 1, 3, 3, BORDER);
    };
    addButton(1);
    EXPECT_EQ(run({kPoll, kPoll, kSecond, kPoll, kSecond, kSecond, kPoll}, KUL_LEFT), "+1 poll poll -1 ")
        << "the wait after a pass starts the next second";
    EXPECT_EQ(GetChain(3)->Pointer->nVisible, F) << "stays hidden";
    EXPECT_EQ(cellOf(window(4), 1, 1).pair, RED_CYAN) << "drawn by the same pass";
    EXPECT_EQ(Poll(0), 1);
    EXPECT_EQ(Poll(1), 0);
    advanceClock(-100);
    EXPECT_EQ(Poll(1), 0);
    advanceClock(1);
    EXPECT_EQ(Poll(1), 1) << "a clock that was set back does not stop the polling";
}

// Of dialogs that lie over each other.
TEST_F(DialogTest, PollsThatChangeNothingWriteNothing)
{
    for (int nChain : {2, 3}) {
        makeDialog(nChain);
        kulgui_place(nChain, 4 * nChain, 2 * nChain, KUL_KEEP, KUL_KEEP);
    }
    kullabel_create(2, 1);
    kullabel_config(2, 1, KUL_KEEP, KUL_KEEP, 35, 1, 2, 1, LEFT, NOBORDER, "");
    for (int nChain : {0, 2, 3})
        kulgui_show(nChain);
    addButton(1);
    static int nPolls, nBefore;
    nPolls = 0;
    GetChain(3)->Pointer->onPoll = [] {};
    GetChain(2)->Pointer->onPoll = [] {
        say(std::to_string(updates() - std::exchange(nBefore, updates())));
        if (++nPolls == 1)
            events.clear();
        if (nPolls == 3)
            kullabel_setText(2, 1, "ab");
    };
    EXPECT_EQ(run({kPoll, kSecond, kPoll, kSecond, kPoll, kSecond, kPoll, kSecond, kPoll}, KUL_LEFT), "0 0 1 -1 ");
}

TEST_F(DialogTest, PollsOnceInAPassThatRunsADialogItself)
{
    makeDialog(2);
    addButton(1, nullptr, 2);
    addButton(1);
    GetChain(1)->Pointer->onPoll = [] {
        say("poll");
        kulgui_exec(2);
    };
    static int nPolls;
    nPolls = 0;
    GetChain(2)->Pointer->onPoll = [] {
        say("alarm");
        if (++nPolls == 2)
            kulgui_leave(2);
    };
    EXPECT_EQ(run({kPoll, kSecond, kPoll, kSecond, kPoll, kSecond, kPoll}, KUL_LEFT), "+1 poll +1 alarm alarm -1 -1 ");
}

TEST_F(DialogTest, PollsMayDestroyAnything)
{
    static int nVictim;
    for (nVictim = 0; nVictim < 4; ++nVictim) {
        SCOPED_TRACE(nVictim);
        for (int nChain : {2, 3}) {
            makeDialog(nChain);
            kulgui_show(nChain);
            GetChain(nChain)->Pointer->onPoll = [] { say("poll"); };
        }
        GetChain(2)->Pointer->onPoll = [] { kulgui_destroy(nVictim); };
        addButton(1);
        const bool survives = nVictim >= 2;
        EXPECT_EQ(run({kPoll, kSecond, kPoll}, survives ? KUL_LEFT : -10000),
                  std::string("+1 ") + (nVictim == 1 || nVictim == 2 ? "poll " : "") + (survives ? "-1 " : ""));
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
    ExecOnFunction([] {
        const CURRENT other{9, 9, 9, 9, 9, 9};
        SetCurrentSelection(&other);
    });
    ExecOnFunction(nullptr);
    SetCurrentSelection(nullptr);
    EXPECT_EQ(std::memcmp(GetCurrentSelection(), &before, sizeof before), 0);
    EXPECT_EQ(GetCurrentComponentType(), BUTTON);
    EXPECT_EQ(GetCurrentOptionSelection(), 4);
    for (const CONTROL& controls : {CONTROL{F, F, F, F}, CONTROL{F, F, T, F}, CONTROL{F, F, F, T}}) {
        SetControls(&controls);
        EXPECT_EQ(ExitUIorGUIorChains(), controls.bExitGUI == controls.bExitProgram ? -1 : 0);
    }
}

TEST_F(DialogTest, FrameTitleAndShadow)
{
    const struct {
        int nWidth;
        const char* szTitle;
        const char* top;
    } rows[] = {{12, "Title", "┌──Title───┐"}, // half of the width, half of the text, and one
                {12, "Titles", "┌─Titles───┐"},
                {7, "Title", "Title─┐"}, // over the corner
                {5, "Title", "┌───┐"},   // no room: not shown
                {5, nullptr, "┌───┐"}};
    for (const auto& row : rows) {
        makeDialog(2, row.nWidth, 3)->szTitle = row.szTitle;
        kulgui_show(2);
        EXPECT_EQ(picture(window(2), 0, 0, 1, row.nWidth)[0], row.top);
        kulgui_destroy(2);
    }
    GUI& gui = *GetChain(1)->Pointer;
    gui.nColorStandard = WHITE_RED;
    gui.nBorder = NOBORDER;
    kulgui_show(1);
    EXPECT_EQ(cellOf(window(1), 1, 0).glyph, "│") << "a frame in any case";
    EXPECT_EQ(cellOf(window(1), 1, 0).pair, WHITE_RED);
    kulgui_hide(1);
    EXPECT_TRUE(panel_hidden(gui.pnlMain) && panel_hidden(gui.pnlShadow));
    kulgui_show(1);
    EXPECT_FALSE(panel_hidden(gui.pnlMain) || panel_hidden(gui.pnlShadow));
    EXPECT_EQ(kulgui_show(9), 0);
    EXPECT_EQ(kulgui_hide(9), 0);
}

TEST_F(DialogTest, ProgramsDrawBesideTheLibrary)
{
    for (int nChain : {0, 1, 1}) // the last time nothing changes
        kulgui_show(nChain);
    WINDOW* win = newwin(1, 5, 20, 60);
    waddstr(win, "mine");
    wnoutrefresh(win);
    {
        const kul::Pass pass;
    }
    EXPECT_EQ(picture(curscr, 20, 60, 1, 4)[0], "mine");
    GUI own{};
    own.winMain = win;
    own.winShadow = newwin(1, 5, 21, 61);
    DlgBox(&own);
    EXPECT_EQ(cellOf(own.winShadow, 0, 4).pair, GREEN_YELLOW) << "with windows of its own";
    for (WINDOW* each : {own.winMain, own.winShadow})
        delwin(each);
}

// Gives the terminal a size, and looks at it as a wait does.
void resize(int nLines, int nColumns)
{
    setenv("LINES", std::to_string(nLines).c_str(), 1);
    setenv("COLUMNS", std::to_string(nColumns).c_str(), 1);
    const kul::Pass pass;
    kul::fitScreen();
    kul::runOnResize();
}

TEST_F(DialogTest, SizesAndPlacesOfEveryKind)
{
    const struct {
        int nX, nY, nWidth, nHeight;
        std::vector<int> shown; // width and height of the window, and where it is brought in
    } rows[] = {{-5, -5, 10, 5, {10, 5, 0, 0}},
                {0, 0, 0, 0, {1, 1, 0, 0}},
                {100, 2, 60, 18, {60, 18, 20, 2}},
                {KUL_CENTER, KUL_CENTER, 11, 7, {11, 7, 34, 8}},
                {INT_MAX, INT_MIN, INT_MAX, INT_MIN, {512, 1, 0, 0}}};
    for (const auto& row : rows) {
        kulgui_create(2);
        kulgui_config(2, INT_MAX, INT_MIN, -1, 99, "far", 0, row.nX, row.nY, row.nWidth, row.nHeight, nullptr, nullptr,
                      nullptr, nullptr, nullptr);
        kulgui_show(2);
        const WINDOW* shown = panel_window(GetChain(2)->Pointer->pnlMain);
        EXPECT_EQ((std::vector{GetWindowWidth(window(2)), GetWindowHeight(window(2)), getbegx(shown), getbegy(shown)}),
                  row.shown);
        kulgui_destroy(2);
    }
}

TEST_F(DialogTest, KeepItsPlaceAndPictureOnScreensOfEverySize)
{
    makeDialog(2, 15, 8);
    kulgui_place(2, 60, 10, KUL_KEEP, KUL_KEEP);
    makeDialog(3, 30, 10);
    kulgui_place(3, KUL_CENTER, KUL_CENTER, KUL_KEEP, KUL_KEEP);
    for (int nChain : {0, 3, 2})
        kulgui_show(nChain);
    mvwaddch(window(2), 6, 13, 'm');
    kulgui_setOnResize(1, [] { say("hidden"); });
    kulgui_setOnResize(3, [] { say(std::to_string(LINES)); });
    const struct {
        int nLines, nColumns;
        std::vector<int> places; // of dialogs 2 and 3
    } rows[] = {{18, 60, {45, 10, 15, 4}}, {5, 20, {5, 0, 0, 0}},       {1, 1, {0, 0, 0, 0}},
                {2, 300, {60, 0, 135, 0}}, {100, 80, {60, 10, 25, 45}}, {24, 80, {60, 10, 25, 7}}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.nLines);
        events.clear();
        resize(row.nLines, row.nColumns);
        const GUI& second = *GetChain(2)->Pointer;
        const GUI& third = *GetChain(3)->Pointer;
        EXPECT_EQ((std::vector{second.nX, second.nY, third.nX, third.nY}), row.places);
        EXPECT_EQ(cellOf(window(2), 6, 13).glyph, "m");
        EXPECT_EQ(getbegx(panel_window(second.pnlMain)), row.places[0]);
        EXPECT_EQ(panel_above(third.pnlMain), second.pnlShadow) << "the order stays";
        EXPECT_EQ(GetChain(0)->Pointer->nWidth, row.nColumns);
        EXPECT_EQ(events, "hidden " + std::to_string(row.nLines) + ' ');
    }
    kulgui_place(2, 70, KUL_KEEP, 20, 4);
    EXPECT_EQ(picture(newscr, 13, 60, 1, 20)[0], "└──────────────────┘");
    GetChain(2)->Pointer->nX = 3; // a program may write it as well
    resize(30, 80);
    EXPECT_EQ(getbegx(window(2)), 3);
    resize(24, 80);
    EXPECT_EQ(kulgui_place(0, 1, 1, 1, 1), -1);
    EXPECT_EQ(kulgui_place(9, 1, 1, 1, 1), -1);
    EXPECT_EQ(kulgui_setOnResize(9, nullptr), -1);
}

TEST_F(DialogTest, LargerThanTheScreenShowsWhereTheUserIs)
{
    kulgui_place(1, 0, 0, 60, 20);
    for (int nRef : {1, 4})
        addButton(nRef);
    button(1).nX = 2;
    button(4).nY = 15;
    resize(5, 20);
    kulgui_setTabbing(1, T);
    events.clear();
    typeKeys({-2, KS_TAB, -2, KS_UP, -2, 'x', -2, KS_PAGEUP, KS_LEFT, -2, KS_TAB, -2}, {[] {
                 WINDOW* shown = panel_window(GetChain(1)->Pointer->pnlMain);
                 std::string text;
                 for (std::string row : picture(shown, 0, 0, 5, 20))
                     text += row.erase(row.find_last_not_of(' ') + 1) + '|';
                 say(text);
             }});
    kulgui_exec(1);
    EXPECT_EQ(events, "+1 ┌───────────────────|│|│ ┌──────┐|│ │  B   │|│ └──────┘| -1 +4 "
                      "||            ┌──────┐|            │  B   │|            └──────┘| "
                      "|||            ┌──────┐|            │  B   │| "
                      "||            ┌──────┐|            │  B   │|            └──────┘| "
                      "||||| -4 +1 "
                      "┌──────┐|│  B   │|└──────┘||| -1 ");
    resize(24, 80);
}

TEST_F(DialogTest, PrimaryBackground)
{
    GetChain(0)->Pointer->szTitle = "alone";
    kulgui_show(0);
    EXPECT_EQ(picture(newscr, 0, 0, 1, 7)[0], "alone  ") << "without any panel";
    EXPECT_EQ(picture(stdscr, 0, 0, 3, 10), (Rows{"alone     ", "──────────", "          "}));
    // The line has attributes made of the colour set's number, twice shifted, and no colour.
    const Cell line = cellOf(stdscr, 1, 79);
    EXPECT_EQ(line.pair, 0);
    EXPECT_EQ(line.attributes, static_cast<attr_t>(BLACK_WHITE) << 16);
    EXPECT_EQ(cellOf(stdscr, 23, 79).pair, BLACK_WHITE);
    EXPECT_EQ(GetWindowWidth(nullptr), -1);
}

} // namespace
