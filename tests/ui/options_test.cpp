// SPDX-License-Identifier: MIT
//
// Option lists: what they have of their own. Views and lookups are those of check box lists.
#include <climits>
#include <string>

#include "support/window_test.hpp"

namespace {

using kultest::Rows;

std::string events;

// The event with what the selection says in it: cursor and chosen element.
void note(const char* szEvent)
{
    events += szEvent + std::to_string(kuloptions_getSelected(1, 1)) + "/" +
              std::to_string(GetCurrentOptionSelection()) + " ";
}

class OptionsTest : public kultest::WindowTest {
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        events.clear();
        makeDialog(1);
        kulgui_show(1);
        ASSERT_EQ(kuloptions_create(1, 1), 0);
    }

    static int config(int nSelect, int nPosition, int nHeight = 5, int nBorder = BORDER)
    {
        return kuloptions_config(
            1, 1, KUL_KEEP, KUL_KEEP, KUL_KEEP, 2, 2, 14, nHeight, nBorder, nSelect, nPosition,
            [] { note("focus"); }, [] { note("unfocus"); }, [] { note("select"); },
            [] { note("click"); });
    }

    static void add(int nCount)
    {
        for (int i = 0; i < nCount; ++i) {
            ASSERT_EQ(kuloptions_addElement(
                          1, 1, std::to_string(i).c_str(), 1, [] { note("e"); }, [] { note("c"); }),
                      0);
        }
    }

    static KULOPTIONS& record()
    {
        return *static_cast<KULOPTIONS*>(GetUIComponentByRef(1, 1)->Pointer);
    }
};

struct Script {
    int nElements;
    int nSelect;
    int nPosition;
    std::vector<int> keys;
    const char* events;
    int nFirst; // in a box of three rows
};

const Script kScripts[] = {
    {5, 0, 0, {KS_DOWN}, "focus0/0 select1/0 e1/0 unfocus1/0 ", 0},
    {5, 0, 1, {KS_SPACE, 'x'}, "focus1/0 click1/1 c1/1 unfocus1/1 ", 0},
    {5, 3, KUL_KEEP, {KS_ENTER}, "focus0/3 click0/0 c0/0 unfocus0/0 ", 0},
    {5, 1, 0, {KS_UP}, "focus0/1 select4/1 e4/1 unfocus4/1 ", 2},
    {2, 1, 1, {KS_DOWN}, "focus1/1 select0/1 e0/1 unfocus0/1 ", 0},
    // A cursor that starts below the view, and outside of the list.
    {9, 7, 7, {}, "focus7/7 unfocus7/7 ", 5},
    {9, 7, 7, {KS_UP}, "focus7/7 select6/7 e6/7 unfocus6/7 ", 5},
    {3, 0, 50, {KS_DOWN}, "focus50/0 select0/0 e0/0 unfocus0/0 ", 0},
    {5, 0, 50, {KS_UP}, "focus50/0 select4/0 e4/0 unfocus4/0 ", 2},
    {3, 0, -70, {KS_DOWN}, "focus-70/0 select0/0 e0/0 unfocus0/0 ", 0},
    {3, 0, -7, {KS_UP}, "focus-7/0 select2/0 e2/0 unfocus2/0 ", 0},
    {2, 0, 9, {KS_SPACE}, "focus9/0 click9/9 unfocus9/9 ", 0},
    {0, 3, 0, {KS_SPACE}, "focus0/3 click0/0 unfocus0/0 ", -1},
};

TEST_F(OptionsTest, RunsCallbacksInOrder)
{
    for (const Script& script : kScripts) {
        SCOPED_TRACE(script.events);
        ASSERT_EQ(config(script.nSelect, script.nPosition), 0);
        add(script.nElements);
        events.clear();
        std::vector<int> keys = script.keys;
        keys.push_back(KS_ESC);
        kultest::typeKeys(keys);
        EXPECT_EQ(kuloptions_execKeys(1, 1), -10);
        EXPECT_EQ(events, script.events);
        EXPECT_EQ(record().nFirstShowed, script.nFirst);
    }
}

TEST_F(OptionsTest, DrawsChosenElementAndCursor)
{
    const std::vector<kultest::Legend> legend = {
        {'.', RED_BLUE}, {'f', RED_MAGENTA}, {'u', RED_WHITE}, {'d', RED_CYAN}};
    config(1, 2);
    add(9);
    kuloptions_getElement(1, 1, 3)->nEnable = 0;
    kultest::typeKeys({KS_DOWN});
    kuloptions_execKeys(1, 1);
    EXPECT_EQ(kultest::picture(window(1), 2, 2, 5, 14),
              (Rows{"┌────────────┬", "│(o) 1       │", "│( ) 2        ", "│( ) 3        ",
                    "└──────────── "}));
    EXPECT_EQ(kultest::colors(window(1), 3, 2, 3, 14, legend),
              (Rows{"uuuu.u.......u", "uuuu.u.......U", "ufff.f.......U"}));
    // Beyond the list no element is the chosen one.
    EXPECT_EQ(kuloptions_setClicked(1, 1, 77), 77);
    EXPECT_EQ(kuloptions_getClicked(1, 1), 77);
    kultest::typeKeys({KS_UP});
    kuloptions_execKeys(1, 1);
    EXPECT_EQ(kultest::picture(window(1), 3, 3, 3, 5), (Rows{"( ) 1", "( ) 2", "( ) 3"}));
    EXPECT_EQ(kultest::colors(window(1), 5, 2, 1, 6, legend), (Rows{"uddd.d"}));
}

TEST_F(OptionsTest, KeepsItsScrollBarInTheBox)
{
    for (int nHeight = 1; nHeight < 6; ++nHeight) {
        SCOPED_TRACE(nHeight);
        for (const int nPosition : {0, 1, 2, 3, 6, -5, INT_MIN, INT_MAX}) {
            config(0, nPosition, nHeight, NOBORDER);
            add(7);
            kultest::typeKeys({0});
            kuloptions_execKeys(1, 1);
            const kultest::Cell below = kultest::cellOf(window(1), 2 + nHeight, 15);
            EXPECT_EQ(below.pair, RED_BLUE) << nPosition;
            EXPECT_EQ(kultest::cellOf(window(1), 1, 15).pair, RED_BLUE) << nPosition;
        }
    }
}

TEST_F(OptionsTest, EndsWhenItIsHiddenOrGone)
{
    struct {
        KULCALLBACK action;
        int nResult;
        const char* events; // from the choice on
    } const rows[] = {
        {[] {
             kuloptions_hide(1, 1);
             note("hide");
         },
         0, "hide1/1 c1/1 unfocus1/1 "},
        {[] {
             kulgui_destroy(1);
             note("destroy");
         },
         -10000, "destroy1/1 "},
        {[] {
             config(KUL_KEEP, KUL_KEEP);
             note("config");
         },
         10, "config1/1 unfocus0/0 "},
        {[] {
             kulgui_leave(1);
             note("leave");
         },
         KUL_LEFT, "leave1/1 unfocus1/1 "},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.events);
        kulgui_destroy(1);
        makeDialog(1);
        kuloptions_create(1, 1);
        kuloptions_config(
            1, 1, KUL_KEEP, KUL_KEEP, KUL_KEEP, 2, 2, 14, 5, NOBORDER, 0, 1, nullptr,
            [] { note("unfocus"); }, nullptr, row.action);
        add(3);
        events.clear();
        kultest::typeKeys({KS_SPACE, KS_TAB});
        EXPECT_EQ(kuloptions_execKeys(1, 1), row.nResult);
        EXPECT_EQ(events, row.events);
    }
}

TEST_F(OptionsTest, AnswersUnknownAndOther)
{
    kulcheckbox_create(1, 2);
    EXPECT_EQ(kuloptions_create(1, 2), -10024);
    for (const int nRef : {2, 99, INT_MIN}) {
        EXPECT_EQ(kuloptions_config(1, nRef, 0, 0, 0, 0, 0, 9, 9, BORDER, 0, 0, nullptr, nullptr,
                                    nullptr, nullptr),
                  -1);
        EXPECT_EQ(kuloptions_addElement(1, nRef, "x", 1, nullptr, nullptr), -1);
        EXPECT_EQ(kuloptions_getElement(1, nRef, 0), nullptr);
        EXPECT_EQ(kuloptions_setClicked(1, nRef, 5), -1);
        EXPECT_EQ(kuloptions_getClicked(1, nRef), -1);
        EXPECT_EQ(kuloptions_execKeys(1, nRef), -1);
    }
    kuloptions_hide(1, 1);
    EXPECT_EQ(kuloptions_execKeys(1, 1), -1);
    EXPECT_EQ(kuloptions_getSelected(1, 1), -1);
    EXPECT_EQ(kuloptions_remElement(1, 1, 0), 0);
    EXPECT_EQ(WipeOptionElements(nullptr), -1);
    EXPECT_EQ(RemoveOptionElement(nullptr), -1);
    EXPECT_EQ(WipeOptionsComponent(nullptr), 0);
}

TEST_F(OptionsTest, TenThousandElements)
{
    config(0, 5000);
    add(10000);
    kultest::typeKeys({KS_SPACE, KS_UP});
    kuloptions_execKeys(1, 1);
    EXPECT_EQ(kultest::picture(window(1), 3, 3, 3, 8), (Rows{"( ) 4998", "( ) 4999", "(o) 5000"}));
    EXPECT_EQ(events, "focus5000/0 click5000/5000 c5000/5000 select4999/5000 e4999/5000 "
                      "unfocus4999/5000 ");
}

TEST_F(OptionsTest, LivesWithoutMemory)
{
    for (int nGood = 0; nGood < 2; ++nGood) {
        const kultest::FailingMemory failing(nGood);
        EXPECT_LT(kuloptions_create(1, 7 + nGood), 0);
        EXPECT_EQ(kuloptions_addElement(1, 1, "x", 1, nullptr, nullptr), -1);
    }
    EXPECT_EQ(record().nElements, 0);
}

} // namespace
