// SPDX-License-Identifier: MIT
//
// A toolbar's keys and places; its looks and its list of buttons are tested with those of the
// menus.
#include "support/window_test.hpp"

#include <climits>

namespace {

using namespace kultest;

const KULCALLBACK never = [] { note("never"); };

class ToolbarTest : public ComponentTest {
protected:
    // A toolbar in a dialog of its own, with a button for each character, '1' for an enabled one.
    void fill(int nOrient, const std::string& enabled)
    {
        renew();
        kultoolbar_create(1, kRef);
        kultoolbar_config(
            1, kRef, KUL_KEEP, KUL_KEEP, KUL_KEEP, 2, 2, nOrient, [] { note("focus"); }, [] { note("unfocus"); },
            [] { note("select"); }, [] { note("click"); });
        for (const char one : enabled)
            add("b", one == '1' ? 1 : 0);
    }

    static void add(const char* szText, int nEnable = 1)
    {
        EXPECT_EQ(kultoolbar_addButton(1, kRef, szText, 3, nEnable, never, [] { note("button"); }), 0);
    }

    static KULTOOLBAR& toolbar() { return record<KULTOOLBAR>(); }
};

TEST_F(ToolbarTest, HasOneKindOfButtonsAndTwoDirections)
{
    fill(5, "");
    EXPECT_EQ(toolbar().nOrient, LATERAL);
    for (const auto addNone : {kultoolbar_addOKButton, kultoolbar_addCancelButton, kultoolbar_addExitButton})
        EXPECT_EQ(addNone(1, kRef, "OK", 0, 1, nullptr, nullptr), 0);
    EXPECT_EQ(toolbar().nButtons, 0);
    add("long");
    EXPECT_EQ(ConfigUIComponent(1, kRef), 0);
    EXPECT_EQ(toolbar().nMaxLength, 0);
}

TEST_F(ToolbarTest, GivesAllButtonsTheirPlaces)
{
    fill(VERTICAL, "1111");
    // The ones outside of the window follow what changes.
    const std::tuple<int, int, int, const char*, int, int, int> rows[] = {
        {VERTICAL, 2, 2, "a", 1, 2, 6},       {VERTICAL, 2, 2, "a", 4, 2, 18}, {VERTICAL, 2, 3, "a", 5, 2, 23},
        {VERTICAL, 4, 3, "longer", 5, 4, 23}, {VERTICAL, 4, 3, "a", 7, 4, 31}, {LATERAL, 4, 3, "a", 7, 67, 3},
    };
    for (const auto& [nOrient, nX, nY, added, nButton, nXAt, nYAt] : rows) {
        add(added);
        toolbar().nOrient = nOrient;
        toolbar().nX = nX;
        toolbar().nY = nY;
        kulgui_show(1);
        EXPECT_EQ(kultoolbar_getButton(1, kRef, nButton)->nX, nXAt);
        EXPECT_EQ(kultoolbar_getButton(1, kRef, nButton)->nY, nYAt);
    }
}

TEST_F(ToolbarTest, Keys)
{
    const int L = KS_LEFT, R = KS_RIGHT, U = KS_UP, D = KS_DOWN, E = KS_ENTER;
    const std::string farOne = std::string(30, '0') + "1" + std::string(9, '0');
    const std::tuple<int, std::string, int, std::vector<int>, int, int, int, const char*> rows[] = {
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
    for (const auto& [nOrient, enabled, nStart, keys, nResult, nSelect, nCurrent, noted] : rows) {
        SCOPED_TRACE(enabled + ' ' + noted);
        fill(LATERAL, enabled);
        toolbar().nOrient = nOrient;
        toolbar().nSelect = nStart;
        EXPECT_EQ(press(keys), nResult);
        EXPECT_EQ(toolbar().nSelect, nSelect);
        EXPECT_EQ(GetCurrentSelectedToolbarButton(), nCurrent);
        EXPECT_EQ(GetCurrentComponentType(), TOOLBAR);
        EXPECT_EQ(events, noted);
    }
}

TEST_F(ToolbarTest, ClicksWhatWasSelectedIfItIsStillThere)
{
    const std::pair<KULCALLBACK, const char*> rows[] = {
        {[] { kultoolbar_remButton(1, kRef, 0); }, ""},
        {[] { kultoolbar_remButton(1, kRef, 0), add("new"); }, "button2 "},
        {[] { toolbar().nSelect = 0; }, "button2 "},
        {[] { kultoolbar_hide(1, kRef); }, "button2 "},
        {[] { kulgui_leave(1); }, ""},
    };
    for (const auto& [onClick, clicked] : rows) {
        fill(LATERAL, "111");
        toolbar().nSelect = 2;
        toolbar().onClick = onClick;
        press({KS_ENTER});
        EXPECT_EQ(events, std::string("focus2 ") + clicked + "unfocus2 ");
    }
}

TEST_F(ToolbarTest, HidingItsDialogWhileWaitingHidesDialogOne)
{
    makeDialog(2);
    kulgui_show(2);
    kultoolbar_create(2, 1);
    kultoolbar_config(2, 1, KUL_KEEP, KUL_KEEP, KUL_KEEP, 2, 2, LATERAL, nullptr, nullptr, nullptr, nullptr);
    typeKeys({0, -2, KS_TAB}, {[] { kulgui_hide(2); }});
    EXPECT_EQ(kultoolbar_execKeys(2, 1), -10000);
    EXPECT_EQ(GetChain(1)->Pointer->nVisible, F);
}

} // namespace
