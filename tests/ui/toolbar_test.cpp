// SPDX-License-Identifier: MIT
//
// What a toolbar shows, and its keys; its list of buttons is tested with those of the menus.
#include "support/window_test.hpp"

#include <climits>

namespace {

using namespace kultest;

const KULCALLBACK onButton = [] { note("button"); };
const KULCALLBACK onClick = [] { note("click"); };

class ToolbarTest : public ComponentTest {
protected:
    void SetUp() override
    {
        ComponentTest::SetUp();
        kultoolbar_create(1, kRef);
    }

    static void config(int nOrient, KULCALLBACK click = onClick)
    {
        kultoolbar_config(
            1, kRef, KUL_KEEP, KUL_KEEP, KUL_KEEP, 2, 2, nOrient, [] { note("focus"); },
            [] { note("unfocus"); }, [] { note("select"); }, click);
    }

    static void add(const char* szText, int nEnable = 1)
    {
        EXPECT_EQ(kultoolbar_addButton(1, kRef, szText, 3, nEnable, onButton, onButton), 0);
    }

    static KULTOOLBAR& toolbar() { return record<KULTOOLBAR>(); }
};

TEST_F(ToolbarTest, DrawsButtonsOfOneSize)
{
    config(5);
    EXPECT_EQ(toolbar().nOrient, LATERAL);
    EXPECT_EQ(kultoolbar_addOKButton(1, kRef, "OK", 0, 1, nullptr, nullptr), 0);
    EXPECT_EQ(kultoolbar_addCancelButton(1, kRef, "Cancel", 0, 1, nullptr, nullptr), 0);
    EXPECT_EQ(kultoolbar_addExitButton(1, kRef, "Exit", 0, 1, nullptr, nullptr), 0);
    EXPECT_EQ(toolbar().nButtons, 0);
    add("OK");
    add("Cancel");
    add("No", 0);
    kultoolbar_execKeys(1, kRef);
    EXPECT_EQ(shown(2, 0, 3, 31),
              (Rows{"│ ┌──────┐ ┌──────┐ ┌──────┐   ", "│ │  OK  │ │Cancel│ │  No  │   ",
                    "│ └──────┘ └──────┘ └──────┘   "}));
    EXPECT_EQ(shades(3, 0, 1, 31), (Rows{"..ffffffff.uuuuuuuu.dddddddd..."}));
    kulgui_show(1);
    EXPECT_EQ(shades(3, 0, 1, 31), (Rows{"..uuuuuuuu.uuuuuuuu.dddddddd..."}));
    kultoolbar_hide(1, kRef);
    kulgui_show(1);
    EXPECT_EQ(shades(3, 0, 1, 31), (Rows{std::string(31, '.')}));
    events.clear();
    EXPECT_EQ(kultoolbar_execKeys(1, kRef), 10);
    EXPECT_EQ(events, "");
}

TEST_F(ToolbarTest, GivesAllButtonsTheirPlaces)
{
    const auto place = [](int nButton) {
        kulgui_show(1);
        const auto* button = kultoolbar_getButton(1, kRef, nButton);
        return std::pair(button->nX, button->nY);
    };
    config(VERTICAL);
    for (const char* szText : {"a", "b", "c", "d", "e"})
        add(szText);
    EXPECT_EQ(place(1), std::pair(2, 6));
    EXPECT_EQ(place(4), std::pair(2, 18));
    EXPECT_EQ(shown(2, 2, 7, 3), (Rows{"┌─┐", "│a│", "└─┘", "   ", "┌─┐", "│b│", "└─┘"}));
    toolbar().nY = 3; // the ones outside of the window follow
    toolbar().nX = 4;
    EXPECT_EQ(place(4), std::pair(4, 19));
    add("longer");
    EXPECT_EQ(place(5), std::pair(4, 23));
    toolbar().nOrient = LATERAL;
    EXPECT_EQ(place(5), std::pair(4 + 5 * 9, 3));
}

TEST_F(ToolbarTest, Keys)
{
    struct Row {
        int nOrient;
        std::string enabled; // a character for each button, '1' or not
        int nStart;
        std::vector<int> keys;
        int nResult, nSelect, nCurrent;
        const char* events;
    };
    const int L = KS_LEFT, R = KS_RIGHT, U = KS_UP, D = KS_DOWN, E = KS_ENTER;
    const std::string farOne = std::string(30, '0') + "1" + std::string(9, '0');
    // clang-format off
    const Row rows[] = {
        {LATERAL, "101", 0, {R, 0}, KUL_LEFT, 2, 2, "focus0 unfocus2 "},
        {LATERAL, "101", 0, {R, R}, KUL_LEFT, 0, 0, "focus0 unfocus0 "},
        {LATERAL, "1011", 0, {L, L, 'x'}, KUL_LEFT, 2, 2, "focus0 unfocus2 "},
        {LATERAL, "111", 1, {U, D}, KUL_LEFT, 1, 1, "focus1 unfocus1 "},
        {VERTICAL, "111", 1, {L, R, U}, KUL_LEFT, 0, 0, "focus1 unfocus0 "},
        {VERTICAL, "111", 1, {D, D, KS_TAB, D}, 10, 0, 0, "focus1 unfocus0 "},
        {LATERAL, "1", 0, {R, L, KS_ESC, R}, -10, 0, 0, "focus0 unfocus0 "},
        {LATERAL, "11", 1, {E, KS_TAB}, 10, 1, 1, "focus1 click1 button1 unfocus1 "},
        {5, "111", 1, {L, R, U, D, D}, KUL_LEFT, 1, 1, "focus1 unfocus1 "},
        // Without an enabled one the search ends after 30 steps, and Enter clicks where it ended.
        {LATERAL, "0000", 0, {R, E}, KUL_LEFT, 2, 0, "focus0 click0 button0 unfocus0 "},
        {LATERAL, "0000", 0, {L}, KUL_LEFT, 2, 0, "focus0 unfocus0 "},
        {LATERAL, "", 0, {R, E}, KUL_LEFT, 30, 0, "focus0 click0 unfocus0 "},
        {LATERAL, "", 0, {L}, KUL_LEFT, -30, 0, "focus0 unfocus0 "},
        {LATERAL, "11", INT_MAX, {R}, KUL_LEFT, INT_MAX, INT_MAX, "focus2147483647 unfocus2147483647 "},
        {LATERAL, farOne, 0, {R, E}, KUL_LEFT, 30, 30, "focus0 click30 button30 unfocus30 "},
        {LATERAL, std::string(40, '1'), 35, {R, E}, KUL_LEFT, 36, 36, "focus35 click36 button36 unfocus36 "},
    };
    // clang-format on
    for (const Row& row : rows) {
        SCOPED_TRACE(row.enabled + ' ' + row.events);
        config(LATERAL);
        for (const char enabled : row.enabled)
            add("b", enabled == '1' ? 1 : 0);
        toolbar().nOrient = row.nOrient;
        toolbar().nSelect = row.nStart;
        events.clear();
        typeKeys(row.keys);
        EXPECT_EQ(kultoolbar_execKeys(1, kRef), row.nResult);
        EXPECT_EQ(toolbar().nSelect, row.nSelect);
        EXPECT_EQ(GetCurrentSelectedToolbarButton(), row.nCurrent);
        EXPECT_EQ(GetCurrentComponentType(), TOOLBAR);
        EXPECT_EQ(events, row.events);
    }
}

TEST_F(ToolbarTest, CallbacksMayTakeAwayWhatRuns)
{
    // clang-format off
    const struct { const char* name; KULCALLBACK act; int nResult; const char* events; } rows[] = {
        {"hide", [] { kultoolbar_hide(1, kRef); }, 0, "focus2 button2 unfocus2 "},
        {"hide dialog", [] { kulgui_hide(1); }, -10000, "focus2 button2 unfocus2 "},
        {"hide and leave", [] { kulgui_hide(1); kulgui_leave(1); }, KUL_LEFT, "focus2 unfocus2 "},
        // The selection is behind the list then, and the second Enter removes another one.
        {"remove it", [] { kultoolbar_remButton(1, kRef, 0); }, KUL_LEFT, "focus2 unfocus2 "},
        {"remove all", [] { while (kultoolbar_remButton(1, kRef, 0) == 0) {} }, KUL_LEFT, "focus2 unfocus2 "},
        {"configure", [] { config(LATERAL); }, KUL_LEFT, "focus2 click2 unfocus2 "},
        {"focus", [] { kulgui_setFocus(1, kRef); }, 0, "focus2 unfocus2 "},
        {"destroy", [] { kulgui_destroy(1); }, -10000, "focus2 "},
        // The button is the one that was selected when Enter was pressed.
        {"select", [] { toolbar().nSelect = 5; }, KUL_LEFT, "focus2 button2 unfocus2 "},
    };
    // clang-format on
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        renew();
        kultoolbar_create(1, kRef);
        config(LATERAL, row.act);
        for (const char* szText : {"a", "b", "c"})
            add(szText);
        toolbar().nSelect = 2;
        typeKeys({KS_ENTER, KS_ENTER});
        EXPECT_EQ(kultoolbar_execKeys(1, kRef), row.nResult);
        EXPECT_EQ(events, row.events);
    }
}

TEST_F(ToolbarTest, HidingItsDialogWhileWaitingHidesDialogOne)
{
    makeDialog(2);
    kulgui_show(2);
    kultoolbar_create(2, 1);
    kultoolbar_config(2, 1, KUL_KEEP, KUL_KEEP, KUL_KEEP, 2, 2, LATERAL, nullptr, nullptr, nullptr,
                      nullptr);
    typeKeys({0, -2, KS_TAB}, {[] { kulgui_hide(2); }});
    EXPECT_EQ(kultoolbar_execKeys(2, 1), -10000);
    EXPECT_EQ(GetChain(1)->Pointer->nVisible, F);
}

} // namespace
