// SPDX-License-Identifier: MIT
//
// What dialogs cost on the line and look like on the screen of a terminal.
#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <vector>

#include "terminal.hpp"

using namespace kultools;

namespace {

using Rows = std::vector<std::string>;

Launch program(const std::string& name, const std::vector<std::string>& words = {})
{
    Launch launch;
    launch.argv = {KULGUI_TEST_PROGRAMS "/" + name};
    launch.argv.insert(launch.argv.end(), words.begin(), words.end());
    launch.columns = 60;
    launch.rows = 20;
    return launch;
}

// Sends a key to a program at rest, and looks at nothing but what follows.
void press(Terminal& terminal, std::string_view key)
{
    ASSERT_TRUE(terminal.settle());
    terminal.mark();
    terminal.send(key);
    ASSERT_TRUE(terminal.waitFor([&] { return !terminal.received().empty(); }));
    ASSERT_TRUE(terminal.settle());
}

// The background colours of a part of the screen, as the digits of their palette.
Rows backgrounds(const Emulator& screen, int y, int x, int height, int width)
{
    Rows rows;
    for (int row = y; row < y + height; ++row) {
        rows.emplace_back();
        for (int column = x; column < x + width; ++column)
            rows.back() += std::to_string(screen.cell(row, column).background);
    }
    return rows;
}

void expectSameScreen(const Emulator& one, const Emulator& other)
{
    for (int y = 0; y < one.rows(); ++y) {
        for (int x = 0; x < one.columns(); ++x)
            ASSERT_EQ(one.cell(y, x), other.cell(y, x)) << y << ' ' << x << '\n' << one.text();
    }
}

TEST(Screen, MovesTheFocusAtTheCostOfOneCursesUpdateAtMost)
{
    struct Row {
        std::vector<std::string> words;
        const char* key;
        std::size_t nSaved; // on the way between letters and lines
    };
    const Row rows[] = {{{}, "\t", 40}, {{"list"}, "\x1b[B", 0}};
    for (const char* term : {"linux", "vt100", "xterm-256color"}) {
        for (const Row& row : rows) {
            SCOPED_TRACE(std::string(term) + (row.words.empty() ? " buttons" : " list"));
            Launch launch = program("dialogs", row.words);
            Launch reference = program("plain", row.words);
            launch.term = reference.term = term;
            Terminal ours(launch);
            Terminal plain(reference);
            ASSERT_TRUE(ours.waitForText("Main") && plain.waitForText("Main"));
            ASSERT_TRUE(ours.settle() && plain.settle());
            ASSERT_NO_FATAL_FAILURE(expectSameScreen(ours, plain));
            for (int step = 0; step < 3; ++step) {
                ASSERT_NO_FATAL_FAILURE(press(ours, row.key));
                ASSERT_NO_FATAL_FAILURE(press(plain, "\t"));
                ASSERT_NO_FATAL_FAILURE(expectSameScreen(ours, plain));
                EXPECT_LE(ours.received().size() + row.nSaved, plain.received().size());
                EXPECT_EQ(ours.paintedMost(), 1);
            }
        }
    }
}

TEST(Screen, WritesNothingForAKeyThatChangesNothing)
{
    Terminal terminal(program("dialogs", {"desktop", "behind"}));
    ASSERT_TRUE(terminal.waitForText("Three") && terminal.settle());
    terminal.mark();
    terminal.send("x");
    ASSERT_TRUE(terminal.settle());
    EXPECT_EQ(terminal.received(), "");
    ASSERT_NO_FATAL_FAILURE(press(terminal, "\r"));
    EXPECT_NE(terminal.text().find("drawn"), std::string::npos);
}

TEST(Screen, WritesNothingForPollsThatChangeNothing)
{
    for (const std::vector<std::string>& around :
         std::initializer_list<std::vector<std::string>>{{"poll"},
                                                         {"poll", "desktop"},
                                                         {"poll", "desktop", "behind"},
                                                         {"poll", "behind", "third"}}) {
        SCOPED_TRACE(around.back());
        Terminal terminal(program("polling", around));
        ASSERT_TRUE(terminal.waitForText("Three") && terminal.settle());
        terminal.mark();
        // The first bytes that come are those of the pass that changes something.
        ASSERT_TRUE(terminal.pump(kDeadline) && terminal.settle());
        EXPECT_NE(terminal.text().find("polled"), std::string::npos);
        EXPECT_EQ(terminal.paintedMost(), 1);
        int elsewhere = 0;
        for (int y = 0; y < terminal.rows(); ++y) {
            for (int x = 0; x < terminal.columns(); ++x)
                elsewhere += y == 10 && x > 36 && x < 46 ? 0 : terminal.painted(y, x);
        }
        EXPECT_EQ(elsewhere, 0) << terminal.text();
    }
}

TEST(Screen, KeepsTheOrderOfDialogsWhoeverIsDrawn)
{
    Terminal terminal(program("dialogs", {"desktop", "behind"}));
    ASSERT_TRUE(terminal.waitForText("Three") && terminal.settle());
    // The dialog in focus lies above the other one, that one above the primary, each with a shadow.
    const auto look = [&](const std::string& text) {
        EXPECT_EQ(terminal.text(), R"(Desktop
────────────────────────────────────────────────────────────

  ┌───Behind─────┐
  │       ┌────────────────Main──────────────────┐
  │       │                                      │
  │       │                                      │
  │       │                                      │
  │ ┌─────│                                      │
  │ │  Los│ ┌────────┐  ┌────────┐  ┌────────┐   │
  │ └─────│ │  One   │  │  Two   │  │ )" +
                                       text + R"( │   │
  │       │ └────────┘  └────────┘  └────────┘   │
  └───────│                                      │
          │                                      │
          │                                      │
          │                                      │
          │                                      │
          └──────────────────────────────────────┘


)");
        EXPECT_EQ(backgrounds(terminal, 2, 0, 17, 52),
                  (Rows{
                      "6666666666666666666666666666666666666666666666666666",
                      "6622222222222222226666666666666666666666666666666666",
                      "6622222222777777777777777777777777777777777777777766",
                      "6622222222777777777777777777777777777777777777777706",
                      "6622222222777777777777777777777777777777777777777706",
                      "6622222222777777777777777777777777777777777777777706",
                      "6622777777777777777777777777777777777777777777777706",
                      "6622777777774444444444777777777777777777777777777706",
                      "6622777777774444444444777777777777777777777777777706",
                      "6622222222774444444444777777777777777777777777777706",
                      "6622222222777777777777777777777777777777777777777706",
                      "6660000000777777777777777777777777777777777777777706",
                      "6666666666777777777777777777777777777777777777777706",
                      "6666666666777777777777777777777777777777777777777706",
                      "6666666666777777777777777777777777777777777777777706",
                      "6666666666777777777777777777777777777777777777777706",
                      "6666666666600000000000000000000000000000000000000006",
                  }));
    };
    look("Three ");
    ASSERT_NO_FATAL_FAILURE(press(terminal, "\r"));
    look("drawn ");
    EXPECT_EQ(terminal.paintedMost(), 1) << "not even for a moment";
}

TEST(Screen, SendsWholeScreensToASlowReader)
{
    Launch launch = program("flood");
    launch.columns = 300;
    launch.rows = 80;
    Terminal terminal(launch);
    const auto expected = [](int y, int x) {
        return std::string(1, static_cast<char>('a' + (x + y) % 26));
    };
    EXPECT_TRUE(
        terminal.waitFor([&] { return terminal.cell(79, 299).glyph == expected(79, 299); }));
    ASSERT_TRUE(terminal.settle());
    EXPECT_GT(terminal.received().size(), 100000U);
    for (int y = 0; y < terminal.rows(); ++y) {
        for (int x = 0; x < terminal.columns(); ++x)
            ASSERT_EQ(terminal.cell(y, x).glyph, expected(y, x)) << y << ' ' << x;
    }
}

TEST(Screen, FillsATerminalThatReportsNoSize)
{
    Launch launch = program("dialogs", {"desktop"});
    launch.columns = 80;
    launch.rows = 24;
    launch.withoutSize = true;
    Terminal terminal(launch);
    ASSERT_TRUE(terminal.waitForText("Three") && terminal.settle());
    EXPECT_EQ(backgrounds(terminal, 2, 79, 22, 1), Rows(22, "6"));
    EXPECT_EQ(terminal.cell(1, 79).glyph, "─");
}

TEST(Screen, AsksTheTerminalNothing)
{
    for (const char* term : {"linux", "vt100", "xterm-256color"}) {
        Launch launch = program("dialogs", {"desktop"});
        launch.term = term;
        Terminal terminal(launch);
        ASSERT_TRUE(terminal.waitForText("Three"));
        ASSERT_NO_FATAL_FAILURE(press(terminal, "\t"));
        terminal.kill(SIGTERM);
        ASSERT_TRUE(terminal.wait());
        Emulator again(60, 20, term);
        again.feed(terminal.received());
        EXPECT_EQ(again.takeAnswers(), "") << term;
    }
}

} // namespace
