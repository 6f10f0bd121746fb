// SPDX-License-Identifier: MIT
#include "gui/draw.hpp"

#include <array>
#include <functional>

#include "support/window_test.hpp"

namespace {

using DrawTest = kultest::Canvas<6, 4>;

const char* const kNothing = "......|......|......|......|";
const char* const kAll = "      |      |      |      |";

// A call with all of its arguments but the window and the colour.
std::function<void(WINDOW*)> call(auto* draw, auto... arguments)
{
    return [=](WINDOW* win) { draw(win, arguments..., RED_BLUE); };
}

TEST_F(DrawTest, DrawsShapesOfAnySize)
{
    const struct {
        std::function<void(WINDOW*)> draw;
        const char* picture;
    } rows[] = {
        {call(DrawBorder, 1, 1, 3, 4), "......|.┌──┐.|.│..│.|.└──┘.|"},
        {call(DrawBorder, 1, 1, 2, 4), "......|.┌──┐.|.└──┘.|......|"},
        {call(DrawBorder, 1, 1, 1, 1), "......|.┘....|......|......|"},
        {call(DrawBorder, 2, 4, INT_MAX, INT_MAX), "......|......|....┌─|....│.|"},
        {call(DrawBorder, -1, -1, 6, 8), kNothing},
        {call(Fill, 1, 1, 2, 3), "......|.   ..|.   ..|......|"},
        {call(Fill, 1, 1, 2, 0), kNothing},
        {call(Fill, -9, -9, INT_MAX, 11), "  ....|  ....|  ....|  ....|"},
        {call(FillReverse, 1, 1, 2, 3), "......|.   ..|.   ..|......|"},
        {call(WinFill), kAll},
        {call(WinFillReverse), kAll},
        // The last argument of a line is its length: plain ones have a cell more.
        {call(DrawHLine, 1, 1, 3), "......|.────.|......|......|"},
        {call(DrawHLine, 1, 1, -1), kNothing},
        {call(DrawHLine, 1, -5, INT_MAX), "......|──────|......|......|"},
        {call(DrawVLine, 1, 1, 1), "......|.│....|.│....|......|"},
        {call(DrawThickHLine, 1, 1, 3), "......|.▒▒▒▒.|......|......|"},
        {call(DrawThickVLine, 1, 1, 1), "......|.▒....|.▒....|......|"},
        {call(DrawHTeeLine, 1, 1, 4), "......|.├──┤.|......|......|"},
        {call(DrawHTeeLine, 1, 1, 1), "......|.┤....|......|......|"},
        {call(DrawVTeeLine, 1, 1, 3), "......|.┬....|.│....|.┴....|"},
    };
    for (const auto& row : rows) {
        clear();
        row.draw(nullptr);
        row.draw(win_);
        EXPECT_EQ(drawn(), row.picture) << "row " << &row - rows;
        for (int cell = 0; cell < 24; ++cell) {
            const kultest::Cell found = kultest::cellOf(win_, cell / 6, cell % 6);
            EXPECT_EQ(found.pair, found.glyph == "." ? 0 : RED_BLUE) << "row " << &row - rows;
        }
        EXPECT_EQ(getattrs(win_), static_cast<int>(A_NORMAL)) << "row " << &row - rows;
    }
}

TEST_F(DrawTest, ReversesInPlaceOfOtherAttributes)
{
    wattr_on(win_, A_BOLD, nullptr);
    Fill(win_, 0, 0, 1, 1, RED_BLUE);
    EXPECT_EQ(kultest::cellOf(win_, 0, 0).attributes, A_BOLD);
    EXPECT_EQ(getattrs(win_), static_cast<int>(A_BOLD)) << "a colour goes, the rest stays";
    FillReverse(win_, 1, 1, 1, 3, RED_BLUE);
    EXPECT_EQ(shades(1, 0, 1, 5), "-BBB-|");
    EXPECT_EQ(kultest::cellOf(win_, 1, 1).attributes, A_REVERSE);
    wattr_on(win_, A_BOLD, nullptr);
    WinFillReverse(win_, RED_BLUE);
    EXPECT_EQ(kultest::cellOf(win_, 3, 5).attributes, A_REVERSE);
}

TEST(Layout, CentresAndFills)
{
    for (const auto& [nSpace, nLength, nOffset] : {std::array{10, 3, 3}, {11, 3, 4}, {11, 4, 3}, {4, 5, -1}})
        EXPECT_EQ(Offset(nSpace, nLength), nOffset) << nSpace << ' ' << nLength;
    char buffer[] = "......";
    FillString(buffer, 3, '#');
    FillString(buffer, INT_MIN, '?');
    EXPECT_STREQ(buffer, "###...");
}

} // namespace
