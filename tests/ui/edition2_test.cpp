// SPDX-License-Identifier: MIT
//
// Edition 2: the way through a dialog and out of it, selections, and what tells the user where he is.
#include <cctype>
#include <cstring>

#include "gui/screen.hpp"
#include "support/window_test.hpp"

namespace {

using namespace kultest;

const CURRENT& current()
{
    return *GetCurrentSelection();
}

class Edition2Test : public ComponentTest {
protected:
    void SetUp() override
    {
        ASSERT_EQ(kulgui_setEdition(2), 0);
        ComponentTest::SetUp();
    }

    static void addButton(
        int nRef, int nX, int nY, KULCALLBACK onClick = [] { say("click"); })
    {
        addComponent(BUTTON, nRef, nX, nY,
                     {[] { say("+" + std::to_string(current().nUserInterface)); },
                      [] { say("-" + std::to_string(current().nUserInterface)); }, nullptr, onClick});
    }
};

TEST_F(Edition2Test, AMenuLongerThanItsRowShowsTheSelectedText)
{
    kulgui_destroy(1);
    makeDialog(1, 20, 5);
    addComponent(MENU, 1, 0, 0);
    for (const char* szText : {"<One>", "<Two>", "<Three>", "<Four>"})
        addElement(1, szText);
    const auto shown = [](std::vector<int> keys) {
        run(keys);
        return picture(window(1), 2, 0, 1, 20)[0];
    };
    EXPECT_EQ(shown({}), "│ <One>   <Two>   <T");
    EXPECT_EQ(shown({KS_RIGHT, KS_RIGHT}), "│ <Two>   <Three>  │");
    EXPECT_EQ(shown({KS_END}), "│ <Three>   <Four> │");
    EXPECT_EQ(shown({KS_HOME}), "│ <One>   <Two>   <T");
}

// 1 at the top left, 2 right of it, 3 below 1, 4 far below and to the right; 5 hidden, 6 disabled
// by its record, 7 by the program.
TEST_F(Edition2Test, TheFocusGoesByTabsAndArrows)
{
    const std::pair<int, int> places[] = {{2, 2}, {12, 2}, {2, 6}, {20, 10}, {30, 2}, {30, 6}, {30, 10}};
    for (int i = 0; i < 7; ++i)
        addButton(i + 1, places[i].first, places[i].second);
    kulbutton_hide(1, 5);
    static_cast<KULBUTTON*>(GetUIComponentByRef(1, 6)->Pointer)->nEnable = 0;
    EXPECT_EQ(kulgui_enable(1, 7, F), 0);
    const std::pair<std::vector<int>, std::string_view> rows[] = {
        {{KS_TAB, KS_TAB, KS_TAB, KS_TAB}, "+1 -1 +2 -2 +3 -3 +4 -4 +1 -1 "},
        {{KS_BACKTAB, KS_BACKTAB}, "+1 -1 +4 -4 +3 -3 "},
        {{KS_LEFT, KS_UP, 'x'}, "+1 -1 "},
        {{KS_RIGHT, KS_LEFT}, "+1 -1 +2 -2 +1 -1 "},
        {{KS_DOWN, KS_DOWN, KS_UP}, "+1 -1 +3 -3 +4 -4 +2 -2 "},
        {{KS_RIGHT, KS_RIGHT}, "+1 -1 +2 -2 +4 -4 "},
        {{-2, 0, KS_ENTER}, "+1 -1 +2 click -2 "},
    };
    for (const auto& [keys, expected] : rows) {
        kulgui_setFocus(1, 1);
        EXPECT_EQ(run(keys, KUL_LEFT, {[] { kulgui_enable(1, 1, F); }}), expected);
        kulgui_enable(1, 1, T);
    }
    GetChain(1)->Pointer->nCurrentUI = 77;
    EXPECT_EQ(run({}), "+1 -1 ") << "gone: the first one";
    for (int nRef : {1, 2, 3, 4})
        kulgui_enable(1, nRef, F);
    EXPECT_EQ(run({KS_ENTER, KS_TAB, KS_ESC}, KUL_CANCELLED), "") << "nothing to focus, and not stuck";
    EXPECT_EQ(kulgui_enable(1, 9, T) + kulgui_enable(9, 1, T), -2);
    kulgui_setEdition(1);
    kulgui_enable(1, 2, T);
    kulgui_setTabbing(1, T);
    EXPECT_EQ(run({KS_TAB, KS_ENTER}), "+2 -2 +6 click -6 ") << "a mark counts in edition 1, nEnable does not";
}

TEST_F(Edition2Test, EscapeEnterHotkeysAndOnKey)
{
    addComponent(TEXTBOX, 1, 2, 5);
    addButton(2, 2, 2);
    addButton(3, 12, 2, [] { say("cancel" + std::to_string(current().nUserInterface)); });
    EXPECT_EQ(kulgui_setDefault(1, 1) + kulgui_setCancel(9, 2) + kulgui_setDefault(1, 9), -3);
    EXPECT_EQ(run({KS_ENTER}), "+2 -2 ") << "without a default button on to the next";
    kulgui_setFocus(1, 1);
    EXPECT_EQ(run({KS_ESC}, KUL_CANCELLED), "");
    EXPECT_EQ(kulgui_setDefault(1, 2) + kulgui_setCancel(1, 3), 0);
    EXPECT_EQ(run({KS_ENTER, KS_ESC, KS_TAB, KS_ENTER}), "click cancel3 +2 click -2 ") << "the focus stays";
    kulgui_setFocus(1, 1);
    kulbutton_hide(1, 3);
    EXPECT_EQ(run({KS_ESC}, KUL_CANCELLED), "") << "nobody is trapped";
    kulbutton_show(1, 3);

    EXPECT_EQ(kulgui_setHotkey(1, 3, KS_F1) + kulgui_setHotkey(1, 1, KS_F2), 0);
    EXPECT_EQ(run({KS_F1, KS_F1, KS_F2, 'x'}), "+3 cancel3 cancel3 -3 ");
    EXPECT_STREQ(kultextbox_getText(1, 1), "x");
    kulgui_setOnKey(1, [] {
        say("key" + std::to_string(kulgui_getKey()));
        kulgui_setKey(kulgui_getKey() == 'a' ? 'b' : kulgui_getKey() == 'c' ? 0 : kulgui_getKey());
    });
    EXPECT_EQ(run({'a', 'c', KS_F1}), "key97 key99 key1000 +3 cancel3 -3 ");
    EXPECT_EQ(std::string(kultextbox_getText(1, 1)).find_first_of("ac"), std::string::npos);
    EXPECT_NE(std::string(kultextbox_getText(1, 1)).find('b'), std::string::npos);

    int value = 0;
    EXPECT_EQ(kulgui_setUser(1, KUL_DIALOG, &value) + kulgui_setUser(1, 2, &events), 0);
    EXPECT_EQ(kulgui_getUser(1, KUL_DIALOG), &value);
    EXPECT_EQ(kulgui_getUser(1, 2), &events);
    EXPECT_EQ(kulgui_getUser(1, 1), nullptr);
    EXPECT_EQ(kulgui_setUser(1, 9, nullptr), -1);
}

// The kinds with elements, each with "Ab", "ac" (disabled), "ba", "Bb" and "cc".
constexpr struct {
    int nType, nBack, nForward;
    int (*count)(int, int);
} kKinds[] = {{MENU, KS_LEFT, KS_RIGHT, kulmenu_count},           {DYNMENU, KS_UP, KS_DOWN, kuldynmenu_count},
              {DESCRMENU, KS_LEFT, KS_RIGHT, kuldescrmenu_count}, {TOOLBAR, KS_LEFT, KS_RIGHT, kultoolbar_count},
              {CHECKBOX, KS_UP, KS_DOWN, kulcheckbox_count},      {OPTIONS, KS_UP, KS_DOWN, kuloptions_count}};

void addElements(int nType)
{
    addComponent(nType, 1, 1, 1);
    for (const char* szText : {"Ab", "ac", "ba", "Bb", "cc"})
        addElement(1, szText, szText[1] != 'c' || szText[0] == 'c');
}

TEST_F(Edition2Test, SelectionsGoByStepsPagesEndsAndLetters)
{
    // Keys: < back, > forward, [ Home, ] End, - Page Up, + Page Down, others as they are.
    constexpr const char* kLetters = "<>[]-+";
    const std::tuple<int, std::string_view, int> rows[] = {
        {0, ">", 2}, {0, "<", 4}, {4, ">", 0},  {2, "<", 0},   {0, "]", 4},   {3, "[", 0}, {0, "b", 2},  {0, "bB", 3},
        {3, "b", 2}, {4, "a", 0}, {0, "ax", 0}, {0, "+++", 4}, {4, "---", 0}, {1, "", 2},  {4, "]+", 4},
    };
    for (const auto& kind : kKinds) {
        SCOPED_TRACE(kind.nType);
        renew();
        addElements(kind.nType);
        EXPECT_EQ(kind.count(1, 1), 5);
        EXPECT_EQ(kind.count(1, 9), -1);
        EXPECT_EQ(kulgui_select(1, 1, 5) + kulgui_select(1, 1, -1) + kulgui_select(1, 9, 0), -3);
        const int kKeys[] = {kind.nBack, kind.nForward, KS_HOME, KS_END, KS_PAGEUP, KS_PAGEDOWN};
        for (const auto& [nStart, letters, nSelect] : rows) {
            std::vector<int> keys;
            for (const char letter : letters)
                keys.push_back(std::isalpha(letter) ? letter : kKeys[std::strchr(kLetters, letter) - kLetters]);
            EXPECT_EQ(kulgui_select(1, 1, nStart), 0);
            run(keys);
            EXPECT_EQ(kind.nType == OPTIONS ? current().nPosition : current().nSelect, nSelect) << "from " << nStart;
        }
        run({KS_SPACE, -2, 'x'}, KUL_LEFT, {[] { SetUIVisibility(1, 1, F); }});
    }
}

TEST_F(Edition2Test, ElementsBeyondTheThirtieth)
{
    for (const int nType : {CHECKBOX, OPTIONS}) {
        renew();
        addElements(nType);
        for (int i = 5; i < 50; ++i)
            addElement(1, "more");
        kulgui_select(1, 1, 49);
        run({KS_SPACE});
        const bool checks = nType == CHECKBOX;
        EXPECT_EQ(kuloptions_getChosen(1, 1), checks ? -1 : 49);
        EXPECT_EQ(kulcheckbox_isChecked(1, 1, 49), checks ? 1 : -1);
        EXPECT_EQ(kulcheckbox_check(1, 1, 48, T) + kulcheckbox_check(1, 1, 49, F), checks ? 0 : -2);
        EXPECT_EQ(kulcheckbox_isChecked(1, 1, 48), checks ? 1 : -1);
        EXPECT_EQ(kulcheckbox_isChecked(1, 1, 49), checks ? 0 : -1);
        EXPECT_EQ(kulcheckbox_isChecked(1, 1, 50) + kulcheckbox_check(1, 1, -1, T), -2);
        EXPECT_EQ(kuloptions_choose(1, 1, 50) + kuloptions_choose(1, 9, 0), -2);
        EXPECT_EQ(kuloptions_choose(1, 1, 3), checks ? -1 : 0);
        EXPECT_EQ(kuloptions_getChosen(1, 1), checks ? -1 : 3);
        kuloptions_setClicked(1, 1, 99);
        EXPECT_EQ(kuloptions_getChosen(1, 1), -1);
    }
}

TEST_F(Edition2Test, ShowsWhereTheUserIs)
{
    addElements(CHECKBOX);
    addButton(2, 1, 6);
    addButton(3, 10, 6);
    kulgui_setDefault(1, 2);
    kulgui_enable(1, 3, F);
    run({KS_DOWN});
    WINDOW* win = window(1);
    EXPECT_EQ(picture(win, 1, 1, 8, 18),
              (Rows{"┌──────────────── ", "│[ ] Ab           ", "│[ ] ac           ", "│[ ] ba           ",
                    "└────────────────┴", "┌──────┐ ┌──────┐ ", "│> OK <│ │  OK  │ ", "└──────┘ └──────┘ "}));
    EXPECT_EQ(colors(win, 2, 1, 6, 18, {{'.', BLACK_WHITE}, {'f', WHITE_BLUE}, {'d', BLUE_WHITE}}),
              (Rows{"..................", ".ddd.dd...........", ".ffffffffffffffff.", "..................",
                    ".........dddddddd.", ".........dddddddd."}));
    EXPECT_EQ(kulgui_setMarkerBars(2), KUL_ERROR);
    kulgui_setMarkerBars(T);
    kulgui_show(1);
    EXPECT_EQ(colors(win, 4, 1, 1, 18, {{'.', BLACK_WHITE}, {'f', WHITE_BLUE}}), Rows{".fff.............."});
    kulgui_setMarkerBars(F);
    kulbutton_config(1, 2, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, 1, 6, 4, 1, "OK", nullptr, nullptr, nullptr,
                     nullptr);
    kulgui_show(1);
    EXPECT_EQ(picture(win, 7, 1, 1, 4), Rows{">OK<"}) << "the text is kept";
    kulgui_show(0);
    EXPECT_EQ(cellOf(stdscr, 1, 5).pair, WHITE_BLUE) << "the line below the title";
    EXPECT_EQ(kulgui_setEdition(3), -1);
    // what is selected in a menu without the focus
    const auto menuAlone = [this] {
        renew();
        addElements(DYNMENU);
        kulgui_select(1, 1, 2);
        GetChain(1)->Pointer->nCurrentUI = -1;
        kulgui_show(1);
        const Cell inside = cellOf(window(1), 4, 5);
        EXPECT_EQ(cellOf(window(1), 3, 5).attributes, A_NORMAL);
        return inside;
    };
    EXPECT_EQ(menuAlone().pair, BLACK_CYAN);
    const NoColors none;
    EXPECT_EQ(menuAlone().attributes, A_UNDERLINE);
    run({});
    EXPECT_EQ(cellOf(window(1), 4, 5).attributes, A_REVERSE);
    auto* menu = static_cast<KULDYNMENU*>(GetUIComponentByRef(1, 1)->Pointer);
    menu->nColorFocus = menu->nColorUnfocus;
    kulgui_show(1);
    EXPECT_EQ(cellOf(window(1), 4, 5).attributes, A_NORMAL) << "who gives both one look wants no mark";
}

} // namespace
