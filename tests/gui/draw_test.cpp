// SPDX-License-Identifier: MIT
#include "gui/draw.hpp"

#include <tuple>

#include "support/window_test.hpp"

namespace {

// A window of 4 x 6 cells; its picture is one text, with a bar after each row.
class DrawTest : public kultest::WindowTest {
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        win_ = newwin(4, 6, 0, 0);
        ASSERT_TRUE(win_);
        clear();
    }
    void TearDown() override
    {
        delwin(win_);
        WindowTest::TearDown();
    }
    void clear()
    {
        for (int row = 0; row < 4; ++row)
            mvwaddstr(win_, row, 0, "......");
    }

    // The picture; what is drawn must have the colour set, and the window no attributes.
    std::string drawn() const
    {
        std::string picture;
        for (int cell = 0; cell < 24; ++cell) {
            const kultest::Cell found = kultest::cellOf(win_, cell / 6, cell % 6);
            EXPECT_EQ(found.pair, found.glyph == "." ? 0 : RED_BLUE) << "cell " << cell;
            picture += found.glyph + (cell % 6 == 5 ? "|" : "");
        }
        EXPECT_EQ(getattrs(win_), static_cast<int>(A_NORMAL));
        return picture;
    }

    WINDOW* win_ = nullptr;
};

const char* const kNothing = "......|......|......|......|";
const char* const kAll = "      |      |      |      |";

TEST_F(DrawTest, DrawsRectangles)
{
    struct Row {
        void (*draw)(WINDOW*, int nY, int nX, int nHeight, int nWidth, int nColorSet);
        int nY, nX, nHeight, nWidth;
        const char* picture;
    };
    for (const Row& row : std::initializer_list<Row>{
             {DrawBorder, 1, 1, 3, 4, "......|.┌──┐.|.│..│.|.└──┘.|"},
             {DrawBorder, 1, 1, 2, 4, "......|.┌──┐.|.└──┘.|......|"},
             {DrawBorder, 1, 1, 1, 1, "......|.┘....|......|......|"},
             {DrawBorder, 2, 4, 9, 9, "......|......|....┌─|....│.|"},
             {DrawBorder, 2, 4, INT_MAX, INT_MAX, "......|......|....┌─|....│.|"},
             {DrawBorder, -1, -1, 6, 8, kNothing},
             {DrawBorder, INT_MAX, INT_MAX, INT_MAX, INT_MAX, kNothing},
             {DrawBorder, INT_MIN, INT_MIN, INT_MIN, INT_MIN, kNothing},
             {Fill, 1, 1, 2, 3, "......|.   ..|.   ..|......|"},
             {Fill, 1, 1, 2, 0, kNothing},
             {Fill, 1, 1, 0, 3, kNothing},
             {Fill, -9, -9, INT_MAX, 11, "  ....|  ....|  ....|  ....|"},
             {Fill, 3, INT_MIN, INT_MAX, INT_MAX, kNothing},
             {Fill, INT_MIN, 0, INT_MIN, INT_MIN, kNothing},
             {FillReverse, 1, 1, 2, 3, "......|.   ..|.   ..|......|"},
             {FillReverse, INT_MAX, INT_MAX, INT_MAX, INT_MAX, kNothing},
         }) {
        clear();
        row.draw(win_, row.nY, row.nX, row.nHeight, row.nWidth, RED_BLUE);
        EXPECT_EQ(drawn(), row.picture) << row.nY << ' ' << row.nHeight << ' ' << row.nWidth;
        row.draw(nullptr, row.nY, row.nX, row.nHeight, row.nWidth, RED_BLUE);
    }
    for (void (*const draw)(WINDOW*, int) : {WinFill, WinFillReverse}) {
        clear();
        draw(nullptr, RED_BLUE);
        draw(win_, RED_BLUE);
        EXPECT_EQ(drawn(), kAll);
    }
}

TEST_F(DrawTest, DrawsLines)
{
    struct Row {
        void (*draw)(WINDOW*, int nY, int nX, int nLength, int nColorSet);
        int nY, nX, nLength;
        const char* picture;
    };
    for (const Row& row : std::initializer_list<Row>{
             {DrawHLine, 1, 1, 3, "......|.────.|......|......|"},
             {DrawHLine, 1, 1, 0, "......|.─....|......|......|"},
             {DrawHLine, 1, 1, -1, kNothing},
             {DrawHLine, 1, -5, INT_MAX, "......|──────|......|......|"},
             {DrawHLine, INT_MIN, 1, 3, kNothing},
             {DrawVLine, 1, 1, 1, "......|.│....|.│....|......|"},
             {DrawVLine, INT_MAX, 1, INT_MAX, kNothing},
             {DrawThickHLine, 1, 1, 3, "......|.▒▒▒▒.|......|......|"},
             {DrawThickHLine, 1, INT_MIN, INT_MIN, kNothing},
             {DrawThickVLine, 1, 1, 1, "......|.▒....|.▒....|......|"},
             {DrawHTeeLine, 1, 1, 4, "......|.├──┤.|......|......|"},
             {DrawHTeeLine, 1, 1, 2, "......|.├┤...|......|......|"},
             {DrawHTeeLine, 1, 1, 1, "......|.┤....|......|......|"},
             {DrawHTeeLine, 1, INT_MAX, INT_MAX, kNothing},
             {DrawVTeeLine, 1, 1, 3, "......|.┬....|.│....|.┴....|"},
             {DrawVTeeLine, INT_MIN, 1, INT_MIN, kNothing},
         }) {
        clear();
        row.draw(win_, row.nY, row.nX, row.nLength, RED_BLUE);
        EXPECT_EQ(drawn(), row.picture) << row.nY << ' ' << row.nX << ' ' << row.nLength;
        row.draw(nullptr, row.nY, row.nX, row.nLength, RED_BLUE);
    }
}

TEST_F(DrawTest, ReversesInPlaceOfOtherAttributes)
{
    wattr_on(win_, A_BOLD, nullptr);
    Fill(win_, 0, 0, 1, 1, RED_BLUE);
    EXPECT_EQ(kultest::cellOf(win_, 0, 0).attributes, A_BOLD);
    EXPECT_EQ(getattrs(win_), static_cast<int>(A_BOLD)) << "a colour goes, the rest stays";
    FillReverse(win_, 1, 1, 1, 3, RED_BLUE);
    EXPECT_EQ(kultest::colors(win_, 1, 0, 1, 5, {{'-', 0}, {'r', RED_BLUE}}),
              (kultest::Rows{"-RRR-"}));
    EXPECT_EQ(kultest::cellOf(win_, 1, 1).attributes, A_REVERSE);
    EXPECT_EQ(getattrs(win_), static_cast<int>(A_NORMAL));
    wattr_on(win_, A_BOLD, nullptr);
    WinFillReverse(win_, RED_BLUE);
    EXPECT_EQ(kultest::cellOf(win_, 3, 5).attributes, A_REVERSE);
}

TEST(Layout, CentresAndFills)
{
    for (const auto& [nSpace, nLength, nOffset] : std::initializer_list<std::tuple<int, int, int>>{
             {10, 4, 3}, {10, 3, 3}, {11, 3, 4}, {11, 4, 3}, {5, 5, 0}, {4, 5, -1}, {-3, 2, -2}})
        EXPECT_EQ(Offset(nSpace, nLength), nOffset) << nSpace << ' ' << nLength;
    EXPECT_EQ(Offset(INT_MIN, INT_MAX), INT_MIN);
    char buffer[] = "......";
    FillString(buffer, 3, '#');
    FillString(buffer, INT_MIN, '?');
    FillString(nullptr, 3, '?');
    EXPECT_STREQ(buffer, "###...");
}

} // namespace
