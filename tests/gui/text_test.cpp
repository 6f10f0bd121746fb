// SPDX-License-Identifier: MIT
#include "gui/text.hpp"

#include <algorithm>
#include <climits>
#include <clocale>
#include <cstdlib>
#include <cstring>
#include <sys/stat.h>
#include <tuple>
#include <unistd.h>

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

// The same rows, found the long way: a buffer of the width, and a look back for each row.
Rows rowsByBuffer(const std::string& text, int nWidth)
{
    Rows rows;
    const auto width = static_cast<std::size_t>(nWidth);
    for (std::size_t place = 0;;) {
        const std::size_t newline = std::min(text.find('\n', place), text.size());
        if (newline - place < width) {
            rows.push_back(text.substr(place, newline - place));
            if (newline == text.size())
                return rows;
            place = newline + 1;
            continue;
        }
        const std::string buffer = text.substr(place, width);
        const std::size_t space = buffer.rfind(' ');
        if (buffer.back() == ' ') {
            rows.push_back(buffer);
            place += width;
        } else if (space != buffer.npos && space > 0) {
            rows.push_back(buffer.substr(0, space));
            place += space + 1;
        } else {
            rows.emplace_back();
            ++place;
        }
    }
}

TEST(RowWalk, GivesTheRowsOfATable)
{
    struct Row {
        int nWidth;
        const char* szText;
        Rows rows;
    };
    for (const Row& row : std::initializer_list<Row>{
             {10, "", {""}},
             {10, "abc\n", {"abc", ""}},
             {10, "\n\n", {"", "", ""}},
             {4, "abc def", {"abc ", "def"}},
             {11, "Hello world", {"Hello", "world"}},
             {12, "Hello world", {"Hello world"}},
             {4, "abcdefghij", {"", "", "", "", "", "", "", "hij"}},
             {4, " abcd", {"", "", "bcd"}}, // a space in front is no place to cut
             {4, "ab\ncd ef", {"ab", "cd", "ef"}},
             {3, "ab \ncd", {"ab ", "", "cd"}}, // the full row does not look at the newline
             {1, "a b", {"", " ", "", ""}},
             {100, "wider than any screen of old", {"wider than any screen of old"}},
             {INT_MAX, "a b", {"a b"}},
             {0, "text", {}},
             {INT_MIN, "text", {}},
             {10, nullptr, {}},
         }) {
        EXPECT_EQ(rowsOf(row.szText, row.nWidth), row.rows)
            << (row.szText ? row.szText : "NULL") << " in " << row.nWidth;
        EXPECT_EQ(GetWrapTextHeight(row.nWidth, row.szText), static_cast<int>(row.rows.size()));
    }
}

TEST(RowWalk, GivesTheRowsOfTheLongWayForAnyText)
{
    std::srand(1);
    for (int round = 0; round < 3000; ++round) {
        std::string text;
        for (int left = std::rand() % 40; left > 0; --left)
            text += "abc  \n"[std::rand() % 6];
        for (int nWidth = 1; nWidth < 9; ++nWidth)
            ASSERT_EQ(rowsOf(text.c_str(), nWidth), rowsByBuffer(text, nWidth))
                << text << " in " << nWidth;
    }
}

TEST(RowWalk, LooksAtEachCharacterOnce)
{
    // One empty row a character: going over the width for each would take hours.
    const std::string word(10'000'000, 'x');
    EXPECT_EQ(GetWrapTextHeight(5'000'000, word.c_str()), 5'000'002);
}

class TextTest : public kultest::WindowTest {
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        win_ = newwin(6, 12, 0, 0);
        plain_ = newwin(6, 12, 0, 0);
        ASSERT_TRUE(win_ && plain_);
    }
    void TearDown() override
    {
        delwin(win_);
        delwin(plain_);
        WindowTest::TearDown();
    }

    WINDOW* win_ = nullptr;
    WINDOW* plain_ = nullptr;
};

TEST_F(TextTest, DrawsRowsFromAPlaceAndNothingElse)
{
    for (int row = 0; row < 6; ++row)
        mvwaddstr(win_, row, 0, "......");
    EXPECT_EQ(WrapText(win_, 1, 1, 7, RED_BLUE, "abc def\n\ng h"), 4);
    EXPECT_EQ(kultest::picture(win_, 0, 0, 6, 6),
              (Rows{"......", ".abc..", ".def..", "......", ".g h..", "......"}));
    EXPECT_EQ(kultest::colors(win_, 4, 0, 1, 6, {{'-', 0}, {'r', RED_BLUE}}), (Rows{"-rrr--"}))
        << "the space between words is drawn";
}

TEST_F(TextTest, DrawsNoMoreThanItMay)
{
    const Rows nothing(2, "      ");
    for (const int nAlignment : {LEFT, CENTER, RIGHT}) {
        werase(win_);
        NewStrToBox(win_, 1, 0, 4, 2, RED_BLUE, nAlignment, "a\nb\nc\nd\ne");
        EXPECT_EQ(kultest::picture(win_, 0, 0, 3, 4), (Rows{" a  ", " b  ", "    "}));
    }
    werase(win_);
    for (const int nHeight : {0, INT_MIN})
        NewStrToBox(win_, 0, 0, 4, nHeight, RED_BLUE, LEFT, "abc");
    NewStrToBox(win_, 0, 0, 4, 3, RED_BLUE, LEFT, nullptr);
    NewStrToBox(nullptr, 0, 0, 4, INT_MAX, RED_BLUE, LEFT, "abc");
    EXPECT_EQ(WrapText(nullptr, 0, 0, 4, RED_BLUE, "a\nb"), 2);
    for (const int nFar : {INT_MIN, INT_MAX}) {
        WrapText(win_, nFar, 1, 9, RED_BLUE, "out");
        WrapText(win_, 1, nFar, 9, RED_BLUE, "out\nout");
        NewStrToBox(win_, 1, nFar, 9, INT_MAX, RED_BLUE, LEFT, "out\nout");
    }
    EXPECT_EQ(kultest::picture(win_, 0, 0, 2, 6), nothing);
    EXPECT_EQ(WrapText(win_, -3, -1, 30, RED_BLUE, "above\nleft of it and right"), 2);
    EXPECT_EQ(kultest::picture(win_, 0, 0, 2, 12), (Rows{"t of it and ", "            "}));
}

// Every cell and attribute as with a print for each character, in an 8 bit and a UTF-8 locale.
TEST_F(TextTest, DrawsTheCellsOfSinglePrints)
{
    std::srand(2);
    for (const char* locale : {"C", "C.UTF-8"}) {
        ASSERT_TRUE(std::setlocale(LC_ALL, locale));
        for (int round = 0; round < 2000; ++round) {
            std::string text;
            for (int left = std::rand() % 20; left > 0; --left)
                text += "abcdefg  \t\001\r\b\033\177\303\251\342\224\200\377"[std::rand() % 21];
            const int nX = std::rand() % 20 - 6;
            const int nY = std::rand() % 8 - 1;
            wattr_on(plain_, static_cast<attr_t>(COLOR_PAIR(RED_BLUE)), nullptr);
            for (std::size_t i = 0; i < text.size(); ++i)
                mvwprintw(plain_, nY, nX + static_cast<int>(i), "%c", text[i]);
            wattr_off(plain_, static_cast<attr_t>(COLOR_PAIR(RED_BLUE)), nullptr);
            NewStrToBox(win_, nX, nY, 100, 1, RED_BLUE, LEFT, text.c_str());
            for (int cell = 0; cell < 6 * 12; ++cell) {
                cchar_t expected{};
                cchar_t found{};
                mvwin_wch(plain_, cell / 12, cell % 12, &expected);
                mvwin_wch(win_, cell / 12, cell % 12, &found);
                ASSERT_EQ(std::memcmp(&found, &expected, sizeof found), 0)
                    << locale << ", round " << round << ", cell " << cell;
            }
        }
    }
    std::setlocale(LC_ALL, "C");
}

TEST(LineScanners, FindStartsAndEnds)
{
    struct Row {
        const char* szText;
        int nStart;
        int nLength;
        int nFirst;
        int nLast;
    };
    for (const Row& row : std::initializer_list<Row>{
             {"   abc", 0, 10, 3, 5},
             {"      ", 0, 3, 0, 0},
             {"   abc", 0, 3, 0, 2},
             {"hello world", 0, 8, 0, 5}, // the space before the word that is cut
             {"hello world", 0, 20, 0, 10},
             {"hello world", 0, 5, 0, 4},  // a word that ends with the line
             {"hello  world", 0, 6, 0, 4}, // blanks at the end are taken off
             {"a    b", 0, 3, 0, 0},
             {"hello world", 6, 5, 6, 6}, // the last word counts as cut when it fills the line
             {"hello world", 6, 6, 6, 10},
             {"hello", 0, 3, 0, 0}, // no space to cut at
             {"ab\ncd ef gh", 0, 8, 0, 2},
             {"abcdefg\nx", 0, 8, 0, 0}, // a newline in the last column is part of the word
             {"ab\n", 0, 9, 0, 2},       // shorter than the line: one row
             {"hello", 9, 3, 9, -1},
             {"hello", 5, 3, 5, 4},
             {"hello", 2, 0, 2, 1},
             {"hello", 2, -2, 2, -1},
             {"  lo", 0, -1, 0, -2},
             {"hello", -3, 4, -3, -1},
             {"hello", INT_MAX, INT_MAX, INT_MAX, 4},
             {"hello", INT_MIN, INT_MIN, INT_MIN, -1},
             {"hello", 3, INT_MIN, 3, INT_MIN + 2},
             {"", 0, 0, 0, -1},
             {nullptr, 0, 5, 0, -1},
             {nullptr, -1, INT_MIN, -1, -1},
         }) {
        SCOPED_TRACE(row.szText ? row.szText : "NULL");
        EXPECT_EQ(ReturnLineStart(row.szText, row.nStart, row.nLength), row.nFirst);
        EXPECT_EQ(ReturnLineEnd(row.szText, row.nStart, row.nLength), row.nLast);
    }
}

TEST(LineScanners, FindNewlines)
{
    const char* szText = "ab\ncd\nef";
    for (const auto& [nStart, nLength, nFound] :
         std::initializer_list<std::tuple<int, int, int>>{{0, 80, 2},
                                                          {2, 80, 0},
                                                          {3, 5, 2},
                                                          {3, 4, -1},
                                                          {6, 80, -1},
                                                          {INT_MAX, 80, -1},
                                                          {-1, 80, -1}})
        EXPECT_EQ(ReturnEOLPosition(szText, nStart, nLength), nFound) << nStart << ' ' << nLength;
    EXPECT_EQ(ReturnEOLPosition(nullptr, 0, 80), -1);
}

TEST(LineScanners, SwapAndCopyCharacters)
{
    struct Row {
        char from;
        char to;
        int nLength;
        const char* result; // all 8 characters of the buffer
    };
    for (const Row& row : std::initializer_list<Row>{
             {'a', 'o', 2, "bonana\0#"},
             {'a', 'o', 3, "bonona\0#"}, // the character at the length counts
             {'a', 'o', -1, "banana\0#"},
             {'a', 'o', INT_MAX, "bonono\0#"},
             {'\0', '!', 6, "banana!#"},
             {'\0', '!', 5, "banana\0#"},
         }) {
        char text[] = "banana\0#";
        SwapnChar(text, row.from, row.to, row.nLength);
        EXPECT_EQ(std::string(text, 8), std::string(row.result, 8)) << row.nLength;
    }
    char text[] = "banana\0#";
    SwapChar(text, '\0', '!');
    EXPECT_EQ(std::string(text, 8), "banana!#");
    SwapChar(nullptr, 'a', 'b');
    SwapnChar(nullptr, 'a', 'b', 9);

    char copy[] = "......";
    CopyStrWithoutEOS(copy, "abc", 2);
    EXPECT_STREQ(copy, "ab....");
    CopyStrWithoutEOS(copy, "xyz", 9);
    CopyStrWithoutEOS(copy, "?", 0);
    CopyStrWithoutEOS(copy, nullptr, 3);
    CopyStrWithoutEOS(nullptr, "?", 3);
    EXPECT_STREQ(copy, "xyz...");
}

TEST(WrapMarks, AreNullAndDoNotWaitForAWriter)
{
    EXPECT_EQ(GenerateWrapMarks(nullptr, 10, T), nullptr);
    EXPECT_EQ(GenerateWrapMarks("/dev/zero", 10, F), nullptr);
    const std::string pipe = ::testing::TempDir() + "kulgui_wrap_marks";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_EQ(GenerateWrapMarks(pipe.c_str(), 10, T), nullptr);
    EXPECT_EQ(unlink(pipe.c_str()), 0);
}

} // namespace
