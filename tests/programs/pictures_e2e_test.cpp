// SPDX-License-Identifier: MIT
//
// Each kind of component as its example shows it, on three terminals and two sizes, compared with
// the pictures in one folder: the rows of the screen, then the rows of its colours, a letter for
// each look. With KULGUI_RENEW in the environment the pictures are written instead. And on a screen
// whose size changes.
#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <random>
#include <sstream>

#include "terminal.hpp"

namespace {

using namespace kultools;

std::string look(const Cell& cell)
{
    std::string text = cell.foreground == kDefaultColour ? "" : std::to_string(cell.foreground) + ' ';
    text += "on " + std::to_string(cell.background);
    text += cell.bold ? ", bold" : "";
    text += cell.underline ? ", underlined" : "";
    text += cell.reverse ? ", reversed" : "";
    return text;
}

// The screen down to its last row that is not empty.
std::string pictureOf(const Terminal& terminal, int columns, int rows)
{
    std::map<std::string, char> letters = {{look(Cell{}), '.'}};
    std::string text;
    std::string colors;
    std::string legend;
    for (int row = 0; row < rows; ++row) {
        text += terminal.row(row) + '\n';
        for (int column = 0; column < columns; ++column) {
            const std::string now = look(seen(terminal.cell(row, column)));
            const auto [entry, added] = letters.try_emplace(now, static_cast<char>('a' + letters.size() - 1));
            if (added)
                legend += std::string(1, entry->second) + ": " + now + '\n';
            colors += entry->second;
        }
        colors += '\n';
    }
    const Cursor cursor = terminal.cursor();
    legend += cursor.visible ? "cursor: " + std::to_string(cursor.row) + ", " + std::to_string(cursor.column) + '\n'
                             : "no cursor\n";
    return text + '\n' + colors + '\n' + legend;
}

class Kinds : public testing::TestWithParam<const char*> {
protected:
    static Launch launch(const char* term, int columns, int rows)
    {
        return {.argv = {std::string(KULGUI_KINDS "/") + GetParam(), KULGUI_LICENSE},
                .columns = columns,
                .rows = rows,
                .term = term,
                .environment = {"LC_ALL=C.UTF-8"}};
    }
};

TEST_P(Kinds, LookLikeTheirPictures)
{
    for (const char* term : {"linux", "xterm-256color", "vt100"}) {
        for (const auto& [columns, rows] : {std::pair(80, 24), std::pair(40, 9)}) {
            Terminal terminal(launch(term, columns, rows));
            ASSERT_TRUE(terminal.waitFor([&] { return terminal.text().find("─ ") != std::string::npos; }));
            ASSERT_TRUE(terminal.settle());
            const std::string shown = pictureOf(terminal, columns, rows);
            const std::string name = std::string(KULGUI_PICTURES "/") + GetParam() + '-' + term + '-' +
                                     std::to_string(columns) + 'x' + std::to_string(rows) + ".txt";
            if (std::getenv("KULGUI_RENEW")) {
                std::ofstream(name) << shown;
                continue;
            }
            std::stringstream stored;
            stored << std::ifstream(name).rdbuf();
            EXPECT_EQ(stored.str(), shown) << name;
        }
    }
}

// Whatever happened before, a screen is that of a program which began at its size.
TEST_P(Kinds, AreAsIfTheirScreenHadAlwaysHadItsSize)
{
    Terminal terminal(launch("xterm-256color", 60, 18));
    ASSERT_TRUE(terminal.waitForText("─ ") && terminal.settle());
    std::minstd_rand random(1);
    const auto below = [&](int limit) { return 1 + static_cast<int>(random() % static_cast<unsigned>(limit)); };
    constexpr int kTabs = 12, kBetween = 10; // some times round what takes the focus
    for (int step = 0; step < kTabs * kBetween; ++step) {
        terminal.resize(below(300), below(100));
        if (step % kBetween == 0) {
            terminal.press("\t");
            ASSERT_TRUE(terminal.settle());
        }
        while (terminal.pump(0))
            continue;
    }
    // The status bar's program places its fields for the columns that it begins with.
    const int fixed = std::string(GetParam()) == "statbar" ? 60 : 0;
    for (const auto& [wanted, rows] : {std::pair(80, 24), {20, 5}, {300, 100}, {1, 1}, {60, 18}}) {
        const int columns = fixed > 0 ? fixed : wanted;
        Terminal expected(launch("xterm-256color", columns, rows));
        ASSERT_TRUE(expected.pump(kDeadline) && expected.settle());
        terminal.resize(columns, rows);
        ASSERT_TRUE(terminal.settle());
        EXPECT_EQ(pictureOf(terminal, columns, rows), pictureOf(expected, columns, rows));
    }
}

INSTANTIATE_TEST_SUITE_P(All, Kinds,
                         testing::Values("menu", "dynmenu", "descrmenu", "button", "toolbar", "checkbox", "options",
                                         "fileview", "textbox", "statbar", "scrollbar", "progbar", "descrfield", "box",
                                         "line", "label"));

} // namespace
