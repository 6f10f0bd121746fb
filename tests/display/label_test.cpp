// SPDX-License-Identifier: MIT
#include <climits>

#include "support/window_test.hpp"

namespace {

class LabelTest : public kultest::Canvas<20, 8> {
protected:
    void SetUp() override
    {
        Canvas::SetUp();
        ASSERT_EQ(kullabel_create(1, 1), 0);
    }

    static int config(int nX, int nY, int nWidth, int nHeight, int nAlignment, int nBorder, const char* szText)
    {
        return kullabel_config(1, 1, RED_CYAN, RED_WHITE, nX, nY, nWidth, nHeight, nAlignment, nBorder, szText);
    }

    static KULLABEL& label() { return *static_cast<KULLABEL*>(GetDIComponentByRef(1, 1)->Pointer); }
};

TEST_F(LabelTest, WrapsAndAlignsItsRows)
{
    const std::tuple<int, int, int, int, const char*, const char*> rows[] = {
        {8, 4, LEFT, BORDER, "Hello you", "┌──────┐|│Hello │|│you   │|└──────┘|"},
        {8, 4, RIGHT, BORDER, "Hello you", "┌──────┐|│ Hello│|│   you│|└──────┘|"},
        {8, 3, CENTER, NOBORDER, "Hello you", " Hello  |  you   |        |"},
        {10, 1, RIGHT, NOBORDER, "abc", "       abc|"},
        {10, 2, LEFT, NOBORDER, "ab\ncd ef gh", "ab        |cd ef gh  |"},
        {9, 3, LEFT, NOBORDER, "ab\ncd ef gh", "ab       |cd ef    |gh       |"},
        {18, 1, LEFT, NOBORDER, "ab\ncd", "ab cd             |"}, // shorter than a row
        {6, 3, LEFT, NOBORDER, "one   two", "one   |two   |      |"},
        {6, 2, LEFT, NOBORDER, "one two six", "one   |two   |"}, // the rest is lost
        {4, 2, LEFT, BORDER, "text", "┌──┐|└──┘|"},
        {1, 2, LEFT, NOBORDER, "text", " | |"}, // no room at all
        {6, 1, RIGHT, NOBORDER, nullptr, "      |"},
    };
    for (const auto& [nWidth, nHeight, nAlignment, nBorder, szText, cells] : rows) {
        clear();
        ASSERT_EQ(config(1, 1, nWidth, nHeight, nAlignment, nBorder, szText), 0);
        EXPECT_EQ(drawn(1, 1, nHeight, nWidth), cells);
        EXPECT_EQ(shades(1, 0, 1, 2), "-c|");
        EXPECT_EQ(drawn(nHeight + 1, 1, 1, 1) + drawn(1, nWidth + 1, 1, 1), ".|.|");
    }
}

TEST_F(LabelTest, TakesTextsUpToItsCapacity)
{
    for (const auto& [nBorder, fits] :
         {std::pair(+BORDER, std::string(4 * 2, 'x')), {NOBORDER, std::string(6 * 4, 'x')}}) {
        ASSERT_EQ(config(1, 1, 6, 4, LEFT, nBorder, "a"), 0);
        DI* di = GetDIComponentByRef(1, 1);
        di->nUpdate = -1;
        EXPECT_EQ(kullabel_setText(1, 1, (fits + "x").c_str()), -1);
        EXPECT_STREQ(label().szText, "a");
        EXPECT_EQ(di->nUpdate, -1);
        EXPECT_EQ(kullabel_setText(1, 1, fits.c_str()), 0);
        EXPECT_EQ(label().szText, fits);
        EXPECT_EQ(di->nUpdate, 0);
        EXPECT_EQ(kullabel_setText(1, 1, label().szText + 1), 0) << "from its own text";
        EXPECT_EQ(label().szText, fits.substr(1));
        EXPECT_EQ(kullabel_setText(1, 1, nullptr), 0);
        EXPECT_STREQ(label().szText, "");
    }
    const std::string tooLong(100, 'x');
    EXPECT_EQ(config(1, 1, 6, 4, LEFT, BORDER, tooLong.c_str()), 0);
    EXPECT_EQ(config(1, 1, 6, 4, LEFT, BORDER, label().szText), 0) << "its own text";
    EXPECT_EQ(label().szText, tooLong) << "kept whole";
}

TEST_F(LabelTest, TakesAnySizeAndMissingMemory)
{
    for (const int nSize : {0, INT_MIN}) {
        for (const int nBorder : {NOBORDER, BORDER}) {
            EXPECT_EQ(config(5, 3, nSize, nSize, CENTER, nBorder, "text"), 0);
            EXPECT_EQ(kullabel_setText(1, 1, "text"), -1) << "holds nothing";
            drawn();
        }
    }
    clear();
    EXPECT_EQ(config(-2, -1, 14, 3, LEFT, NOBORDER, "above\nleft of it"), 0);
    EXPECT_EQ(drawn(0, 0, 1, 14), "ft of it    ..|");
    label().nWidth = label().nHeight = INT_MAX;
    // Going through all the rows that lie above the window would take minutes.
    for (const int nFar : {INT_MIN, INT_MIN + 1, INT_MIN + 2, INT_MIN + 3, INT_MIN + 4, INT_MAX, 0}) {
        label().nX = label().nY = nFar;
        EXPECT_EQ(drawn(1, 12, 1, 4), nFar == 0 ? "    |" : "....|") << nFar;
    }
    EXPECT_EQ(config(1, 1, INT_MAX, INT_MAX, LEFT, NOBORDER, "some words"), -1);
    config(1, 1, 14, 3, LEFT, NOBORDER, "some words");
    {
        const kultest::FailingMemory failing(0);
        EXPECT_EQ(config(1, 1, 14, 3, LEFT, NOBORDER, "other words"), -1);
    }
    EXPECT_EQ(drawn(1, 1, 1, 14), "              |") << "no text";
    EXPECT_EQ(kullabel_setText(1, 1, "text"), -1);
    ASSERT_EQ(kullabel_create(1, 2), 0);
    EXPECT_EQ(kullabel_setText(1, 2, ""), -1) << "never configured";
}

} // namespace
