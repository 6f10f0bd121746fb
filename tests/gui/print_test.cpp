// SPDX-License-Identifier: MIT
#include "gui/print.hpp"

#include <clocale>
#include <cstdlib>

#include "support/window_test.hpp"

namespace {

using PrintTest = kultest::Canvas<12, 6>;

// All that its cells hold, as bytes.
std::string cellsOf(WINDOW* win)
{
    cchar_t cells[6 * 12] = {};
    for (int i = 0; i < 6 * 12; ++i)
        mvwin_wch(win, i / 12, i % 12, &cells[i]);
    return {reinterpret_cast<const char*>(cells), sizeof cells};
}

// Every cell and attribute as with a print for each character, in an 8 bit and a UTF-8 locale.
TEST_F(PrintTest, DrawsTheCellsOfSinglePrints)
{
    std::srand(2);
    WINDOW* plain = dupwin(win_);
    for (const char* locale : {"C", "C.UTF-8"}) {
        ASSERT_TRUE(std::setlocale(LC_ALL, locale));
        for (int round = 0; round < 2000; ++round) {
            std::string text;
            for (int left = std::rand() % 20; left > 0; --left)
                text += "abcdefg  \t\001\r\b\033\177\303\251\342\224\200\377"[std::rand() % 21];
            const int nX = std::rand() % 20 - 6;
            const int nY = std::rand() % 8 - 1;
            wattr_on(plain, static_cast<attr_t>(COLOR_PAIR(RED_BLUE)), nullptr);
            for (std::size_t i = 0; i < text.size(); ++i)
                mvwprintw(plain, nY, nX + static_cast<int>(i), "%c", text[i]);
            wattr_off(plain, static_cast<attr_t>(COLOR_PAIR(RED_BLUE)), nullptr);
            NewStrToBox(win_, nX, nY, 100, 1, RED_BLUE, LEFT, text.c_str());
            ASSERT_TRUE(cellsOf(win_) == cellsOf(plain)) << locale << ", round " << round;
        }
    }
    delwin(plain);
    std::setlocale(LC_ALL, "C");
}

// Finished cells are the same as what curses makes of a text, also over a background.
TEST_F(PrintTest, PrintsWhatCursesPrints)
{
    const chtype cyan = static_cast<chtype>(COLOR_PAIR(RED_CYAN));
    for (const chtype background : {chtype{' '}, '.' | A_UNDERLINE | cyan}) {
        for (const int nAttributes : {0, int{A_BOLD}, kul::rawAttribute(RED_BLUE), kul::rawAttribute(-1)}) {
            for (const int nX : {INT_MIN, -1, 0, 8, 9, 12, INT_MAX}) {
                for (const char* szText : {"", "a c~", "two rows", "a\tb\n", "\x01\xff"}) {
                    std::string cells[2];
                    for (const auto how : {0, 1}) {
                        wbkgdset(win_, ' ');
                        clear();
                        wbkgdset(win_, background);
                        wattrset(win_, nAttributes);
                        if (how == 0)
                            mvwaddstr(win_, 1, nX, szText);
                        else
                            kul::print(win_, 1, nX, szText);
                        wattrset(win_, 0);
                        cells[how] = cellsOf(win_);
                    }
                    EXPECT_TRUE(cells[0] == cells[1]) << szText << ' ' << nX;
                }
            }
        }
    }
}

// Curses keeps what may become a character, and puts it before what comes next at that place.
TEST_F(PrintTest, ABadByteShowsAsInTheCLocaleWheneverItIsDrawn)
{
    ASSERT_TRUE(std::setlocale(LC_ALL, "C.UTF-8"));
    const struct {
        const char *szText, *printed, *inColumns;
    } rows[] = {
        {"K\xe4se", "K se........|", "K.se........|"},
        {"ab\xc3", "ab .........|", "ab..........|"},
        {"\xf4\x01", " ^A.........|", ".^A.........|"},
        {"\xc2\x9b!", " ~[!........|", ".~!.........|"},
    };
    for (const auto& row : rows) {
        for (int round = 0; round < 3; ++round) {
            clear();
            kul::print(win_, 0, 0, row.szText);
            kul::printOnRow(win_, 1, 0, row.szText);
            kul::drawText(win_, 2, 0, row.szText);
            EXPECT_EQ(drawn(0, 0, 3, 12), std::string(row.printed) + row.printed + row.inColumns) << round;
        }
    }
    std::setlocale(LC_ALL, "C");
}

} // namespace
