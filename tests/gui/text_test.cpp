// SPDX-License-Identifier: MIT
#include "gui/text.hpp"

#include <climits>
#include <cstring>

#include "support/window_test.hpp"

namespace {

using kultest::Rows;

Rows rowsOf(const char* szText, int nWidth)
{
    Rows rows;
    kul::RowWalk walk(szText, nWidth);
    while (const auto row = walk.next())
        rows.emplace_back(*row);
    return rows;
}

TEST(RowWalk, GivesTheRowsOfATable)
{
    // clang-format off
    const struct {
        int nWidth;
        const char* szText;
        Rows rows;
    } rows[] = {
        {10, "", {""}}, {10, "abc\n", {"abc", ""}}, {4, "ab\ncd ef", {"ab", "cd", "ef"}},
        {4, "abc def", {"abc ", "def"}},
        {11, "Hello world", {"Hello", "world"}}, {12, "Hello world", {"Hello world"}},
        {4, "abcdefgh", {"", "", "", "", "", "fgh"}}, {4, "a  bcde f", {"a ", "", "cde ", "f"}},
        {4, " abcd", {"", "", "bcd"}},      // a space in front is no place to cut
        {3, "ab \ncd", {"ab ", "", "cd"}}, // the full row does not look at the newline
        {1, "a b", {"", " ", "", ""}}, {INT_MAX, "a b", {"a b"}},
        {0, "text", {}},
    };
    // clang-format on
    for (const auto& row : rows) {
        SCOPED_TRACE(row.szText);
        EXPECT_EQ(rowsOf(row.szText, row.nWidth), row.rows);
        EXPECT_EQ(GetWrapTextHeight(row.nWidth, row.szText), static_cast<int>(row.rows.size()));
    }
}

TEST(RowWalk, LooksAtEachCharacterOnce)
{
    // One empty row a character: going over the width for each would take hours.
    const std::string word(10'000'000, 'x');
    EXPECT_EQ(GetWrapTextHeight(5'000'000, word.c_str()), 5'000'002);
}

using TextTest = kultest::Canvas<12, 6>;

TEST_F(TextTest, DrawsRowsFromAPlaceAndNothingElse)
{
    EXPECT_EQ(WrapText(win_, 1, 1, 7, RED_BLUE, "abc def\n\ng h"), 4);
    EXPECT_EQ(drawn(0, 0, 6, 6), "......|.abc..|.def..|......|.g h..|......|");
    EXPECT_EQ(shades(4, 0, 1, 6), "-bbb--|") << "the space between words is drawn";
    clear();
    EXPECT_EQ(WrapText(win_, -3, -1, 30, RED_BLUE, "above\nleft of it and right"), 2);
    EXPECT_EQ(drawn(0, 0, 2, 12), "t of it and |............|");
}

TEST_F(TextTest, DrawsNoMoreThanItMay)
{
    NewStrToBox(win_, 1, 0, 4, 2, RED_BLUE, RIGHT, "a\nb\nc\nd\ne");
    EXPECT_EQ(drawn(0, 0, 3, 4), ".a..|.b..|....|") << "whatever the alignment";
    clear();
    NewStrToBox(win_, 0, 0, 4, 0, RED_BLUE, LEFT, "abc");
    EXPECT_EQ(WrapText(nullptr, 0, 0, 4, RED_BLUE, "a\nb"), 2);
    EXPECT_EQ(drawn(0, 0, 2, 6), "......|......|");
}

TEST(LineScanners, FindStartsAndEnds)
{
    // clang-format off
    const struct {
        const char* szText;
        int nStart, nLength, nFirst, nLast;
    } rows[] = {
        {"   abc", 0, 10, 3, 5}, {"   abc", 0, 3, 0, 2}, {"      ", 0, 3, 0, 0},
        {"hello world", 0, 8, 0, 5}, // the space before the word that is cut
        {"hello world", 0, 20, 0, 10}, {"hello world", 6, 6, 6, 10},
        {"hello world", 0, 5, 0, 4},  // a word that ends with the line
        {"hello  world", 0, 6, 0, 4}, // blanks at the end are taken off
        {"hello world", 6, 5, 6, 6},  // the last word counts as cut when it fills the line
        {"hello", 0, 3, 0, 0},        // no space to cut at
        {"ab\ncd ef gh", 0, 8, 0, 2},
        {"abcdefg\nx", 0, 8, 0, 0}, // a newline in the last column is part of the word
        {"ab\n", 0, 9, 0, 2},       // shorter than the line: one row
        {"hello", 9, 3, 9, -1}, {"hello", 5, 3, 5, 4}, {"hello", 2, -2, 2, -1},
        {"hello", -3, 4, -3, -1}, {"hello", INT_MAX, INT_MAX, INT_MAX, 4}, {"", 0, 0, 0, -1}, {nullptr, 0, 5, 0, -1},
    };
    // clang-format on
    for (const auto& row : rows) {
        SCOPED_TRACE(row.szText ? row.szText : "NULL");
        EXPECT_EQ(ReturnLineStart(row.szText, row.nStart, row.nLength), row.nFirst);
        EXPECT_EQ(ReturnLineEnd(row.szText, row.nStart, row.nLength), row.nLast);
    }
}

TEST(LineScanners, FindNewlines)
{
    const struct {
        int nStart, nLength, nFound;
    } rows[] = {{0, 80, 2}, {2, 80, 0}, {3, 5, 2}, {3, 4, -1}, {6, 80, -1}, {INT_MAX, 80, -1}, {-1, 80, -1}};
    for (const auto& row : rows)
        EXPECT_EQ(ReturnEOLPosition("ab\ncd\nef", row.nStart, row.nLength), row.nFound)
            << row.nStart << ' ' << row.nLength;
}

TEST(LineScanners, SwapAndCopyCharactersAndLeaveNoMarks)
{
    const struct {
        char from, to;
        int nLength;
        const char* result;                 // all 8 characters of the buffer
    } rows[] = {{'a', 'o', 3, "bonona\0#"}, // the character at the length counts
                {'a', 'o', -1, "banana\0#"},
                {'a', 'o', INT_MAX, "bonono\0#"},
                {'\0', '!', 6, "banana!#"},
                {'\0', '!', 5, "banana\0#"}};
    for (const auto& row : rows) {
        char text[] = "banana\0#";
        SwapnChar(text, row.from, row.to, row.nLength);
        EXPECT_EQ(std::string(text, 8), std::string(row.result, 8)) << row.nLength;
    }
    char all[] = "banana\0#";
    SwapChar(all, '\0', '!');
    EXPECT_STREQ(all, "banana!#");
    char copy[] = "......";
    CopyStrWithoutEOS(copy, "abcd", 3);
    CopyStrWithoutEOS(copy, "xy", 9);
    EXPECT_STREQ(copy, "xyc...");
    EXPECT_EQ(GenerateWrapMarks("/dev/zero", 10, T), nullptr);
}

} // namespace
