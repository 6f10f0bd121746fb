// SPDX-License-Identifier: MIT
#include "support/window_test.hpp"

#include <climits>
#include <string>

namespace {

using kultest::Rows;

constexpr int kRef = 5;

std::string events;

void note(const char* event)
{
    events += event + std::to_string(GetCurrentSelectedToolbarButton()) + ' ';
}

void onButton()
{
    note("button");
}

class ToolbarTest : public kultest::WindowTest {
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        events.clear();
        makeDialog(1);
        kulgui_show(1);
        kultoolbar_create(1, kRef);
    }

    static int config(
        int nOrient, KULCALLBACK onClick = [] { note("click"); }, int nX = 2)
    {
        return kultoolbar_config(
            1, kRef, KUL_KEEP, KUL_KEEP, KUL_KEEP, nX, 2, nOrient, [] { note("focus"); },
            [] { note("unfocus"); }, [] { note("select"); }, onClick);
    }

    static int add(const char* szText, int nEnable = 1)
    {
        return kultoolbar_addButton(1, kRef, szText, 3, nEnable, onButton, onButton);
    }

    static KULTOOLBAR& toolbar()
    {
        return *static_cast<KULTOOLBAR*>(GetUIComponentByRef(1, kRef)->Pointer);
    }
};

TEST_F(ToolbarTest, DrawsButtonsOfOneSize)
{
    const std::vector<kultest::Legend> legend = {
        {'.', RED_BLUE}, {'f', RED_MAGENTA}, {'u', RED_WHITE}, {'d', RED_CYAN}};
    config(LATERAL);
    add("OK");
    add("Cancel");
    add("No", 0);
    kultest::typeKeys({'x'});
    kultoolbar_execKeys(1, kRef);
    EXPECT_EQ(kultest::picture(window(1), 2, 0, 3, 31),
              (Rows{"│ ┌──────┐ ┌──────┐ ┌──────┐   ", "│ │  OK  │ │Cancel│ │  No  │   ",
                    "│ └──────┘ └──────┘ └──────┘   "}));
    EXPECT_EQ(kultest::colors(window(1), 3, 0, 1, 31, legend),
              (Rows{"..ffffffff.uuuuuuuu.dddddddd..."}));
    kulgui_show(1);
    EXPECT_EQ(kultest::colors(window(1), 3, 0, 1, 31, legend),
              (Rows{"..uuuuuuuu.uuuuuuuu.dddddddd..."}));
    EXPECT_EQ(kultoolbar_getButton(1, kRef, 1)->nX, 11);
    kultoolbar_hide(1, kRef);
    kulgui_show(1);
    EXPECT_EQ(kultest::colors(window(1), 3, 0, 1, 31, legend), (Rows{std::string(31, '.')}));
}

TEST_F(ToolbarTest, GivesAllButtonsTheirPlaces)
{
    config(VERTICAL);
    for (const char* szText : {"a", "b", "c", "d", "e"})
        add(szText);
    kulgui_show(1);
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(kultoolbar_getButton(1, kRef, i)->nY, 2 + 4 * i);
    EXPECT_EQ(kultest::picture(window(1), 2, 2, 7, 3),
              (Rows{"┌─┐", "│a│", "└─┘", "   ", "┌─┐", "│b│", "└─┘"}));
    toolbar().nY = 3; // the ones outside of the window follow
    toolbar().nX = 4;
    kulgui_show(1);
    EXPECT_EQ(kultoolbar_getButton(1, kRef, 4)->nY, 19);
    EXPECT_EQ(kultoolbar_getButton(1, kRef, 4)->nX, 4);
    add("longer");
    kulgui_show(1);
    EXPECT_EQ(kultoolbar_getButton(1, kRef, 5)->nY, 23);
    toolbar().nOrient = LATERAL;
    kulgui_show(1);
    EXPECT_EQ(kultoolbar_getButton(1, kRef, 5)->nX, 4 + 5 * 9);
}

TEST_F(ToolbarTest, Keys)
{
    struct Row {
        int nOrient;
        std::string enabled; // a character for each button, '1' or not
        int nStart;
        std::vector<int> keys;
        int nResult;
        int nSelect;
        int nCurrent;
        const char* events;
    };
    const int L = KS_LEFT, R = KS_RIGHT, U = KS_UP, D = KS_DOWN;
    const Row rows[] = {
        {LATERAL, "101", 0, {R, 0}, KUL_LEFT, 2, 2, "focus0 unfocus2 "},
        {LATERAL, "101", 0, {R, R}, KUL_LEFT, 0, 0, "focus0 unfocus0 "},
        {LATERAL, "101", 2, {L}, KUL_LEFT, 0, 0, "focus2 unfocus0 "},
        {LATERAL, "1011", 0, {L, L, 'x'}, KUL_LEFT, 2, 2, "focus0 unfocus2 "},
        {LATERAL, "111", 1, {U, D}, KUL_LEFT, 1, 1, "focus1 unfocus1 "},
        {VERTICAL, "111", 1, {L, R, U}, KUL_LEFT, 0, 0, "focus1 unfocus0 "},
        {VERTICAL, "111", 1, {D, D, KS_TAB, D}, 10, 0, 0, "focus1 unfocus0 "},
        {LATERAL, "1", 0, {R, L, KS_ESC, R}, -10, 0, 0, "focus0 unfocus0 "},
        {LATERAL, "11", 1, {KS_ENTER, KS_TAB}, 10, 1, 1, "focus1 click1 button1 unfocus1 "},
        {7, "11", 0, {R, KS_TAB}, 10, 1, 1, "focus0 unfocus1 "},
        // Without an enabled one the search ends after 30 steps, and Enter clicks where it ended.
        {LATERAL, "0000", 0, {R, KS_ENTER}, KUL_LEFT, 2, 0, "focus0 click0 button0 unfocus0 "},
        {LATERAL, "0000", 0, {L}, KUL_LEFT, 2, 0, "focus0 unfocus0 "},
        {LATERAL, "", 0, {R, KS_ENTER}, KUL_LEFT, 30, 0, "focus0 click0 unfocus0 "},
        {LATERAL, "", 0, {L}, KUL_LEFT, -30, 0, "focus0 unfocus0 "},
        {LATERAL,
         "11",
         INT_MAX,
         {R, KS_ENTER},
         KUL_LEFT,
         INT_MAX,
         INT_MAX,
         "focus2147483647 click2147483647 unfocus2147483647 "},
        {LATERAL,
         std::string(30, '0') + "1" + std::string(9, '0'),
         0,
         {R, KS_ENTER},
         KUL_LEFT,
         30,
         30,
         "focus0 click30 button30 unfocus30 "},
        {LATERAL,
         std::string(40, '1'),
         35,
         {R, KS_ENTER},
         KUL_LEFT,
         36,
         36,
         "focus35 click36 button36 unfocus36 "},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.enabled + ' ' + row.events);
        config(row.nOrient);
        for (const char enabled : row.enabled)
            add("b", enabled == '1' ? 1 : 0);
        toolbar().nSelect = row.nStart;
        events.clear();
        kultest::typeKeys(row.keys);
        EXPECT_EQ(kultoolbar_execKeys(1, kRef), row.nResult);
        EXPECT_EQ(toolbar().nSelect, row.nSelect);
        EXPECT_EQ(GetCurrentSelection()->nSelect, row.nCurrent);
        EXPECT_EQ(GetCurrentSelection()->nType, TOOLBAR);
        EXPECT_EQ(events, row.events);
    }
    toolbar().nOrient = 5; // by hand: then no arrow key counts
    kultest::typeKeys({L, R, U, D, KS_TAB});
    toolbar().nSelect = 1;
    EXPECT_EQ(kultoolbar_execKeys(1, kRef), 10);
    EXPECT_EQ(toolbar().nSelect, 1);
}

TEST_F(ToolbarTest, CallbacksMayTakeAwayWhatRuns)
{
    struct Row {
        const char* name;
        KULCALLBACK act;
        int nResult;
        const char* events;
    };
    const Row rows[] = {
        {"hide", [] { kultoolbar_hide(1, kRef); }, 0, "focus2 button2 unfocus2 "},
        {"hide dialog", [] { kulgui_hide(1); }, -10000, "focus2 button2 unfocus2 "},
        {"hide and leave",
         [] {
             kulgui_hide(1);
             kulgui_leave(1);
         },
         KUL_LEFT, "focus2 unfocus2 "},
        // The selection is behind the list then, and the second Enter removes another one.
        {"remove it", [] { kultoolbar_remButton(1, kRef, 0); }, KUL_LEFT, "focus2 unfocus2 "},
        {"remove all",
         [] {
             while (kultoolbar_remButton(1, kRef, 0) == 0) {
             }
         },
         KUL_LEFT, "focus2 unfocus2 "},
        {"configure", [] { config(LATERAL); }, KUL_LEFT, "focus2 click2 unfocus2 "},
        {"focus", [] { kulgui_setFocus(1, kRef); }, 0, "focus2 unfocus2 "},
        {"destroy", [] { kulgui_destroy(1); }, -10000, "focus2 "},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        kulgui_destroy(1);
        makeDialog(1);
        kulgui_show(1);
        kultoolbar_create(1, kRef);
        config(LATERAL, row.act);
        for (const char* szText : {"a", "b", "c"})
            add(szText);
        toolbar().nSelect = 2;
        events.clear();
        kultest::typeKeys({KS_ENTER, KS_ENTER});
        EXPECT_EQ(kultoolbar_execKeys(1, kRef), row.nResult);
        EXPECT_EQ(events, row.events);
    }
}

TEST_F(ToolbarTest, ClicksTheButtonThatWasSelectedAtEnter)
{
    config(LATERAL, [] { toolbar().nSelect = 0; });
    add("a");
    kultoolbar_addButton(1, kRef, "b", 0, 1, nullptr, [] { events += "b "; });
    toolbar().nSelect = 1;
    kultest::typeKeys({KS_ENTER, KS_ENTER});
    kultoolbar_execKeys(1, kRef);
    EXPECT_EQ(events, "focus1 b button1 unfocus1 ");
}

TEST_F(ToolbarTest, HidingItsDialogWhileWaitingHidesDialogOne)
{
    makeDialog(2);
    kulgui_show(2);
    kultoolbar_create(2, 1);
    kultoolbar_config(2, 1, KUL_KEEP, KUL_KEEP, KUL_KEEP, 2, 2, LATERAL, nullptr, nullptr, nullptr,
                      nullptr);
    kultest::typeKeys({0, -2, KS_TAB}, {[] { kulgui_hide(2); }});
    EXPECT_EQ(kultoolbar_execKeys(2, 1), -10000);
    EXPECT_EQ(GetChain(1)->Pointer->nVisible, F);
}

TEST_F(ToolbarTest, AddsRemovesAndLooksUp)
{
    config(5);
    EXPECT_EQ(toolbar().nOrient, LATERAL);
    EXPECT_EQ(kultoolbar_addOKButton(1, kRef, "OK", 0, 1, nullptr, nullptr), 0);
    EXPECT_EQ(kultoolbar_addCancelButton(1, kRef, "Cancel", 0, 1, nullptr, nullptr), 0);
    EXPECT_EQ(kultoolbar_addExitButton(1, kRef, "Exit", 0, 1, nullptr, nullptr), 0);
    EXPECT_EQ(toolbar().nButtons, 0);
    toolbar().nSelect = -1;
    for (int i = 0; i < 10000; ++i)
        ASSERT_EQ(add(std::to_string(i).c_str()), 0);
    EXPECT_EQ(toolbar().nSelect, 0);
    EXPECT_EQ(toolbar().nMaxLength, 4);
    EXPECT_STREQ(kultoolbar_getButton(1, kRef, 9)->szText, "9");
    EXPECT_STREQ(kultoolbar_getButton(1, kRef, 45)->szText, "30");
    kultest::typeKeys({KS_LEFT, KS_LEFT, KS_ENTER, KS_RIGHT, KS_RIGHT, KS_RIGHT});
    EXPECT_EQ(kultoolbar_execKeys(1, kRef), KUL_LEFT);
    EXPECT_EQ(toolbar().nSelect, 1);
    toolbar().nSelect = 9999;
    EXPECT_EQ(kultoolbar_remButton(1, kRef, 0), 0);
    EXPECT_EQ(toolbar().nSelect, 9999);
    EXPECT_EQ(kultoolbar_remButton(1, kRef, 0), 0);
    EXPECT_EQ(toolbar().nSelect, 9998);
    while (toolbar().nButtons > 1)
        ASSERT_EQ(kultoolbar_remButton(1, kRef, 0), 0);
    EXPECT_EQ(kultoolbar_remButton(1, kRef, 0), 1);
    EXPECT_EQ(toolbar().nSelect, 0);
    EXPECT_EQ(kultoolbar_getButton(1, kRef, 0), nullptr);
    EXPECT_EQ(kultoolbar_remButton(1, kRef, 0), -1);
    for (int nGood = 0; nGood < 2; ++nGood) {
        const kultest::FailingMemory memory(nGood);
        EXPECT_EQ(add("x"), -1);
    }
    EXPECT_EQ(toolbar().nButtons, 0);
}

TEST_F(ToolbarTest, RefusesUnknownAndForeignComponents)
{
    kulbutton_create(1, 6);
    EXPECT_EQ(kultoolbar_create(1, kRef), -10027);
    for (const int nRef : {6, 7, -1, INT_MIN}) {
        EXPECT_EQ(kultoolbar_execKeys(1, nRef), -1);
        EXPECT_EQ(kultoolbar_getButton(1, nRef, 0), nullptr);
        EXPECT_EQ(kultoolbar_remButton(1, nRef, 0), -1);
        EXPECT_EQ(kultoolbar_addButton(1, nRef, "x", 0, 1, nullptr, nullptr), -1);
    }
    EXPECT_EQ(kultoolbar_execKeys(9, kRef), -1);
    config(LATERAL);
    kultoolbar_hide(1, kRef);
    EXPECT_EQ(kultoolbar_execKeys(1, kRef), 10);
    EXPECT_EQ(events, "");
    EXPECT_EQ(AddToolbarButton(nullptr, nullptr, 1, "x", nullptr, nullptr), nullptr);
    EXPECT_EQ(RemoveToolbarButton(nullptr), -1);
    EXPECT_EQ(WipeToolbarButtons(nullptr), -1);
    EXPECT_EQ(WipeToolbarComponent(nullptr), 0);
    ShowToolbarComponent(nullptr, nullptr, 1);
    ShowToolbarButtonComponent(nullptr, nullptr, nullptr, 1);
}

} // namespace
