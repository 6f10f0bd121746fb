// SPDX-License-Identifier: MIT
#include <algorithm>
#include <climits>
#include <utility>

#include "support/window_test.hpp"

namespace {

using kultest::Rows;

class LabelTest : public kultest::WindowTest {
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        gui_ = makeDialog(1, 20, 8);
        ASSERT_EQ(kullabel_create(1, 1), 0);
        kulgui_show(1);
        clear();
    }
    void clear()
    {
        for (int row = 0; row < 8; ++row)
            mvwaddstr(gui_->winMain, row, 0, "....................");
    }

    static int config(int nX, int nY, int nWidth, int nHeight, int nAlignment, int nBorder,
                      const char* szText)
    {
        return kullabel_config(1, 1, RED_CYAN, RED_WHITE, nX, nY, nWidth, nHeight, nAlignment,
                               nBorder, szText);
    }

    Rows drawn(int nY, int nX, int nHeight, int nWidth)
    {
        ShowDisplayComponents(gui_);
        return kultest::picture(gui_->winMain, nY, nX, nHeight, nWidth);
    }

    GUI* gui_ = nullptr;
};

TEST_F(LabelTest, WrapsAndAlignsItsRows)
{
    struct Row {
        int nWidth;
        int nAlignment;
        int nBorder;
        const char* szText;
        Rows cells; // of a label that has as many rows
    };
    for (const Row& row : std::initializer_list<Row>{
             {8, LEFT, BORDER, "Hello you", {"┌──────┐", "│Hello │", "│you   │", "└──────┘"}},
             {8, RIGHT, BORDER, "Hello you", {"┌──────┐", "│ Hello│", "│   you│", "└──────┘"}},
             {8, CENTER, NOBORDER, "Hello you", {" Hello  ", "  you   ", "        "}},
             {10, RIGHT, NOBORDER, "abc", {"       abc"}},
             {10, LEFT, NOBORDER, "ab\ncd ef gh", {"ab        ", "cd ef gh  "}},
             {9, LEFT, NOBORDER, "ab\ncd ef gh", {"ab       ", "cd ef    ", "gh       "}},
             {18, LEFT, NOBORDER, "ab\ncd", {"ab cd             "}}, // shorter than a row
             {6, LEFT, NOBORDER, "one   two", {"one   ", "two   ", "      "}},
             {6, LEFT, NOBORDER, "one two six", {"one   ", "two   "}}, // the rest is lost
             {4, LEFT, BORDER, "text", {"┌──┐", "└──┘"}},
             {1, LEFT, NOBORDER, "text", {" ", " "}}, // no room at all
             {6, RIGHT, NOBORDER, nullptr, {"      "}},
         }) {
        const int nHeight = static_cast<int>(row.cells.size());
        clear();
        ASSERT_EQ(config(1, 1, row.nWidth, nHeight, row.nAlignment, row.nBorder, row.szText), 0);
        EXPECT_EQ(drawn(1, 1, nHeight, row.nWidth), row.cells);
        EXPECT_EQ(kultest::cellOf(gui_->winMain, 1, 1).pair, RED_CYAN);
        EXPECT_EQ(kultest::cellOf(gui_->winMain, nHeight + 1, 1).glyph, ".");
    }
}

TEST_F(LabelTest, TakesTextsUpToItsCapacity)
{
    for (const auto& [nBorder, nCapacity] :
         std::initializer_list<std::pair<int, std::size_t>>{{BORDER, 4 * 2}, {NOBORDER, 6 * 4}}) {
        ASSERT_EQ(config(1, 1, 6, 4, LEFT, nBorder, "a"), 0);
        DI* di = GetDIComponentByRef(1, 1);
        const auto& label = *static_cast<KULLABEL*>(di->Pointer);
        const std::string fits(nCapacity, 'x');
        di->nUpdate = -1;
        EXPECT_EQ(kullabel_setText(1, 1, (fits + "x").c_str()), -1);
        EXPECT_STREQ(label.szText, "a");
        EXPECT_EQ(di->nUpdate, -1);
        EXPECT_EQ(kullabel_setText(1, 1, fits.c_str()), 0);
        EXPECT_EQ(label.szText, fits);
        EXPECT_EQ(di->nUpdate, 0);
        EXPECT_EQ(kullabel_setText(1, 1, label.szText + 1), 0);
        EXPECT_EQ(label.szText, fits.substr(1));
        EXPECT_EQ(kullabel_setText(1, 1, nullptr), 0);
        EXPECT_STREQ(label.szText, "");
    }
    const std::string tooLong(100, 'x');
    EXPECT_EQ(config(1, 1, 6, 4, LEFT, BORDER, tooLong.c_str()), 0) << "kept whole";
    EXPECT_EQ(static_cast<KULLABEL*>(GetDIComponentByRef(1, 1)->Pointer)->szText, tooLong);
    drawn(1, 1, 1, 1);
}

TEST_F(LabelTest, TakesAnySize)
{
    for (const int nSize : {0, -1, INT_MIN}) {
        for (const int nBorder : {NOBORDER, BORDER}) {
            EXPECT_EQ(config(5, 3, nSize, nSize, CENTER, nBorder, "text"), 0);
            EXPECT_EQ(kullabel_setText(1, 1, "text"), -1) << "holds nothing";
            drawn(1, 1, 1, 1);
        }
    }
    clear();
    EXPECT_EQ(config(-2, -1, 14, 3, LEFT, NOBORDER, "above\nleft of it"), 0);
    EXPECT_EQ(drawn(0, 0, 1, 14), (Rows{"ft of it    .."}));
    auto& label = *static_cast<KULLABEL*>(GetDIComponentByRef(1, 1)->Pointer);
    label.nWidth = label.nHeight = INT_MAX;
    for (const int nFar : {INT_MIN, INT_MAX, 0}) {
        label.nX = label.nY = nFar;
        EXPECT_EQ(drawn(1, 12, 1, 4), (Rows{nFar == 0 ? "    " : "...."})) << nFar;
    }
}

TEST_F(LabelTest, WithoutMemoryHasNoText)
{
    EXPECT_EQ(config(1, 1, INT_MAX, INT_MAX, LEFT, NOBORDER, "some words"), -1);
    config(1, 1, 14, 3, LEFT, NOBORDER, "some words");
    {
        kultest::FailingMemory failing(0);
        EXPECT_EQ(config(1, 1, 14, 3, LEFT, NOBORDER, "other words"), -1);
    }
    EXPECT_EQ(drawn(1, 1, 1, 14), (Rows{std::string(14, ' ')}));
    EXPECT_EQ(kullabel_setText(1, 1, "text"), -1);
    ASSERT_EQ(kullabel_create(1, 2), 0);
    EXPECT_EQ(kullabel_setText(1, 2, ""), -1) << "never configured";
}

} // namespace
