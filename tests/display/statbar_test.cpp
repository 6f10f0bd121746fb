// SPDX-License-Identifier: MIT
#include <climits>

#include "support/window_test.hpp"

namespace {

class StatbarTest : public kultest::Canvas<30, 5> {
protected:
    void SetUp() override
    {
        Canvas::SetUp();
        ASSERT_EQ(kulstatbar_create(1, 1), 0);
        ASSERT_EQ(kulstatbar_config(1, 1, KUL_KEEP, nullptr), 0);
    }

    static int add(int nX, int nWidth, const char* szText, int nAlignment = LEFT)
    {
        return kulstatbar_addElement(1, 1, nX, nWidth, szText, nAlignment, nullptr);
    }
};

TEST_F(StatbarTest, AlignsItsFieldsInTheBottomRow)
{
    EXPECT_EQ(add(1, 5, "Ready to go"), 0);
    EXPECT_EQ(add(10, 8, "abc", RIGHT), 0);
    EXPECT_EQ(add(19, 8, "mid", CENTER), 0);
    EXPECT_EQ(add(27, 9, "cut off"), 0);
    EXPECT_EQ(add(INT_MAX, 99999, "far away", RIGHT), 0);
    EXPECT_EQ(add(INT_MIN, 4, "far", CENTER), 0);
    EXPECT_EQ(drawn(3, 0, 2, 30), std::string(30, '.') + "| Ready         abc   mid   cut|");
    EXPECT_EQ(shades(4, 0, 1, 30), std::string(30, 'B') + '|');
    EXPECT_EQ(kultest::cellOf(win_, 4, 1).attributes, A_REVERSE | A_BOLD);
    EXPECT_EQ(kultest::cellOf(win_, 4, 7).attributes, A_REVERSE);
    EXPECT_EQ(getattrs(win_), static_cast<int>(A_NORMAL));
    kulstatbar_hide(1, 1);
    clear();
    EXPECT_EQ(drawn(4, 0, 1, 2), "..|");
}

TEST_F(StatbarTest, ChangesAndRemovesFields)
{
    DI* di = GetDIComponentByRef(1, 1);
    add(1, 5, "one");
    add(10, 5, nullptr);
    di->nUpdate = -1;
    EXPECT_EQ(kulstatbar_setElement(1, 1, 1, "second"), 0);
    EXPECT_EQ(di->nUpdate, 0);
    EXPECT_STREQ(kulstatbar_getElement(1, 1, 1), "secon");
    EXPECT_EQ(kulstatbar_setElement(1, 1, -3, "first"), 0) << "below 1 is the first";
    EXPECT_STREQ(kulstatbar_getElement(1, 1, INT_MIN), "first");
    EXPECT_EQ(kulstatbar_setElement(1, 1, 0, kulstatbar_getElement(1, 1, 0) + 2), 0);
    EXPECT_STREQ(ReturnStatbarElementText(1, 1, 0), "rst");
    EXPECT_EQ(kulstatbar_setElement(1, 1, 0, nullptr), 0);
    EXPECT_STREQ(kulstatbar_getElement(1, 1, 0), "");
    for (const int nElement : {2, INT_MAX}) {
        EXPECT_EQ(kulstatbar_setElement(1, 1, nElement, "third"), -1);
        EXPECT_EQ(kulstatbar_getElement(1, 1, nElement), nullptr);
    }
    di->nUpdate = -1;
    EXPECT_EQ(kulstatbar_remElement(1, 1), 0);
    EXPECT_EQ(di->nUpdate, 0);
    EXPECT_EQ(kulstatbar_getElement(1, 1, 1), nullptr);
    EXPECT_EQ(kulstatbar_remElement(1, 1), 0);
    EXPECT_EQ(kulstatbar_remElement(1, 1), -1);
    EXPECT_EQ(add(1, 5, "again"), 0);
    EXPECT_STREQ(kulstatbar_getElement(1, 1, 0), "again");
    EXPECT_EQ(kulstatbar_config(1, 1, RED_CYAN, nullptr), 0);
    EXPECT_EQ(kulstatbar_getElement(1, 1, 0), nullptr) << "a bar starts anew";
    EXPECT_EQ(static_cast<KULSTATBAR*>(di->Pointer)->nColor, RED_CYAN);
}

TEST_F(StatbarTest, TakesBadWidthsAndMissingMemory)
{
    for (const int nWidth : {-1, INT_MIN})
        EXPECT_EQ(add(1, nWidth, "text"), -1);
    EXPECT_EQ(kulstatbar_getElement(1, 1, 0), nullptr);
    EXPECT_EQ(add(1, 0, "text"), 0);
    EXPECT_STREQ(kulstatbar_getElement(1, 1, 0), "");
    for (const int nGood : {0, 1}) {
        const kultest::FailingMemory failing(nGood);
        EXPECT_EQ(add(1, 5, "text"), -1);
        EXPECT_EQ(GetStatbarElementByRef(1, 1, 1) != nullptr, nGood == 1) << "stays, without text";
    }
    EXPECT_EQ(kulstatbar_getElement(1, 1, 1), nullptr);
    EXPECT_EQ(kulstatbar_setElement(1, 1, 1, "text"), -1);
    add(3, 5, "text");
    EXPECT_EQ(drawn(4, 0, 1, 9), "   text  |");
}

} // namespace
