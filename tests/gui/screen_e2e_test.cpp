// SPDX-License-Identifier: MIT
//
// What dialogs cost on the line and look like on the screen of a terminal.
#include <gtest/gtest.h>

#include <csignal>
#include <initializer_list>
#include <string>
#include <vector>

#include "support/temporary_file.hpp"
#include "terminal.hpp"

using namespace kultools;

namespace {

Launch program(const std::string& name, std::vector<std::string> words, const std::string& term = "xterm-256color")
{
    words.insert(words.begin(), KULGUI_TEST_PROGRAMS "/" + name);
    return {.argv = words, .columns = 60, .rows = 20, .term = term};
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

// Has a program at rest paint all of the screen.
void repaint(Terminal& terminal)
{
    terminal.mark();
    terminal.kill(SIGCONT);
    ASSERT_TRUE(terminal.waitFor([&] { return terminal.received().size() > 200; }));
    ASSERT_TRUE(terminal.settle());
}

// A part of the screen; where there is no glyph, the background's digit in the palette.
std::string look(const Emulator& screen, int y, int x, int height, int width)
{
    std::string text;
    for (int row = y; row < y + height; ++row) {
        for (int column = x; column < x + width; ++column) {
            const Cell cell = screen.cell(row, column);
            text += cell.glyph == " " ? std::to_string(cell.background) : cell.glyph;
        }
        text += '\n';
    }
    return text;
}

// A key that changes nothing, and what follows when all is at rest again.
std::string silence(Terminal& terminal)
{
    terminal.mark();
    terminal.send("x");
    EXPECT_TRUE(terminal.settle());
    return terminal.received();
}

TEST(Screen, MovesTheFocusForFewBytes)
{
    struct Row {
        std::vector<std::string> words;
        const char* key;
        std::size_t nScreen; // bytes of the first screen, and of a key
        std::size_t nMost;
    };
    const Row rows[] = {{{}, "\t", 540, 155}, {{"list"}, "\x1b[B", 740, 62}};
    for (const char* term : {"linux", "vt100", "xterm-256color"}) {
        for (const Row& row : rows) {
            SCOPED_TRACE(std::string(term) + (row.words.empty() ? " buttons" : " list"));
            Terminal terminal(program("dialogs", row.words, term));
            ASSERT_TRUE(terminal.waitForText("Main") && terminal.settle());
            EXPECT_LE(terminal.received().size(), row.nScreen);
            for (int step = 0; step < 3; ++step) {
                ASSERT_NO_FATAL_FAILURE(press(terminal, row.key));
                EXPECT_LE(terminal.received().size(), row.nMost);
                EXPECT_EQ(terminal.paintedMost(), 1);
            }
            EXPECT_EQ(silence(terminal), "");
        }
    }
}

// On a vt100, which cannot hide it, as well.
TEST(Screen, ShowsTheCursorWhereTheUserIs)
{
    for (const char* term : {"linux", "vt100", "xterm-256color"}) {
        SCOPED_TRACE(term);
        Terminal terminal(program("dialogs", {"desktop", "behind", "second"}, term));
        ASSERT_TRUE(terminal.waitForText("Three") && terminal.settle());
        for (const int column : {15, 27, 38}) {
            EXPECT_EQ(terminal.cursor().row, 10);
            EXPECT_EQ(terminal.cursor().column, column);
            EXPECT_TRUE(terminal.cursor().visible);
            ASSERT_NO_FATAL_FAILURE(press(terminal, "\t"));
        }
        EXPECT_EQ(silence(terminal), "");
    }
}

TEST(Screen, KeepsTheOrderOfDialogsWhoeverIsDrawn)
{
    Terminal terminal(program("dialogs", {"desktop", "behind"}));
    ASSERT_TRUE(terminal.waitForText("Three") && terminal.settle());
    // The dialog in focus lies above the other one, that one above the primary, each with a shadow.
    std::string expected = R"(Desktop666666666666666666666666666666666666666666666
────────────────────────────────────────────────────
6666666666666666666666666666666666666666666666666666
66┌───Behind─────┐6666666666666666666666666666666666
66│2222222┌────────────────Main──────────────────┐66
66│2222222│77777777777777777777777777777777777777│06
66│2222222│77777777777777777777777777777777777777│06
66│2222222│77777777777777777777777777777777777777│06
66│2┌─────│77777777777777777777777777777777777777│06
66│2│77Los│7┌────────┐77┌────────┐77┌────────┐777│06
66│2└─────│7│44One444│77│77Two777│77│7Three77│777│06
66│2222222│7└────────┘77└────────┘77└────────┘777│06
66└───────│77777777777777777777777777777777777777│06
6660000000│77777777777777777777777777777777777777│06
)";
    EXPECT_EQ(look(terminal, 0, 0, 14, 52), expected);
    EXPECT_EQ(look(terminal, 17, 8, 3, 12), "66└─────────\n666000000000\n666666666666\n");
    ASSERT_NO_FATAL_FAILURE(press(terminal, "\r"));
    expected.replace(expected.find("Three"), 5, "drawn");
    EXPECT_EQ(look(terminal, 0, 0, 14, 52), expected);
    EXPECT_EQ(terminal.paintedMost(), 1) << "not even for a moment";
}

// Keys that come together are drawn when they are used up, as if each had been.
TEST(Screen, ShowsWhatWasTypedAhead)
{
    const std::vector<std::string_view> many = {"\x1b[B", "a",  "\x1b[B", " ",     "\t",
                                                "\x1b[H", "\r", "\t",     "\x1b[I"}; // which is no key
    const std::pair<const char*, std::vector<std::string_view>> rows[] = {
        {"list", many},
        {"text", many},
        {"behind", many},
        {"list", {"\x1b[B", " ", "\x1b[A"}}, // what has changed is neither where the cursor was nor where it is
    };
    for (const auto& [kind, keys] : rows) {
        SCOPED_TRACE(kind);
        Terminal together(program("dialogs", {"second", kind}));
        Terminal single(program("dialogs", {"second", kind}));
        ASSERT_TRUE(together.waitForText("Main") && single.waitForText("Main") && together.settle());
        std::string all;
        for (const std::string_view key : keys) {
            single.press(key);
            all += key;
        }
        ASSERT_NO_FATAL_FAILURE(press(together, all));
        ASSERT_TRUE(single.settle());
        EXPECT_EQ(look(together, 0, 0, 20, 60), look(single, 0, 0, 20, 60));
        // All of it painted anew has the same colours.
        ASSERT_NO_FATAL_FAILURE(repaint(single));
        for (int cell = 0; cell < 20 * 60; ++cell)
            EXPECT_EQ(seen(together.cell(cell / 60, cell % 60)), seen(single.cell(cell / 60, cell % 60))) << cell;
        EXPECT_EQ(together.cursor().row, single.cursor().row);
        EXPECT_EQ(together.cursor().column, single.cursor().column);
    }
}

// What moves on the screen is not drawn again, whether keys come alone or together.
TEST(Screen, ScrollsAFile)
{
    const kultest::TemporaryFile file;
    for (int i = 0; i < 100; ++i)
        file.append("line " + std::to_string(i) + '\n');
    const std::string up = "\x1b[A";
    const std::string down = "\x1b[B";
    const struct {
        std::string keys;
        int nTop;
        std::size_t nMost; // bytes
    } steps[] = {
        {down, 1, 80},        {down + down + down, 4, 130},       {up + up, 2, 110},
        {"\x1b[6~", 21, 400}, {down + up + down + down, 23, 130}, {"\x1b[F" + up, 79, 400},
    };
    for (const char* term : {"linux", "vt220"}) {
        Terminal terminal(program("dialogs", {"second", file.path()}, term));
        ASSERT_TRUE(terminal.waitForText("line 19"));
        for (const auto& step : steps) {
            ASSERT_NO_FATAL_FAILURE(press(terminal, step.keys));
            for (int y = 0; y < terminal.rows(); ++y)
                ASSERT_TRUE(terminal.row(y).starts_with("line " + std::to_string(step.nTop + y))) << terminal.text();
            EXPECT_LE(terminal.received().size(), step.nMost) << step.nTop;
        }
    }
    Terminal covered(program("dialogs", {"second", "over", file.path()}));
    ASSERT_TRUE(covered.waitForText("Over"));
    ASSERT_NO_FATAL_FAILURE(press(covered, down));
    ASSERT_NO_FATAL_FAILURE(press(covered, down));
    EXPECT_TRUE(covered.row(5).starts_with("│line 6       ┌────────┐")) << covered.text();
    ASSERT_NO_FATAL_FAILURE(press(covered, "\x1b[F"));
    ASSERT_NO_FATAL_FAILURE(press(covered, up));
    EXPECT_TRUE(covered.row(19).ends_with("┴")) << "the thumb has left the corner";
}

// A paste comes whole, over a fast line and one of 9600 baud; its newline is a blank.
TEST(Screen, TakesAPasteWhole)
{
    std::string letters;
    for (int i = 0; i < 230; ++i)
        letters += static_cast<char>('a' + i % 26);
    for (const int speed : {0, 960}) {
        Terminal terminal(program("dialogs", {"second", "text"}));
        ASSERT_TRUE(terminal.waitForText("Main") && terminal.settle());
        terminal.mark();
        terminal.paste("\033[200~" + letters, speed);
        ASSERT_TRUE(terminal.settle());
        terminal.kill(SIGWINCH); // which ends nothing
        terminal.paste("\r!\033[201~", speed);
        EXPECT_TRUE(terminal.waitForText("!") && terminal.settle()) << terminal.text();
        std::string shown;
        for (int row = 0; row < 8; ++row)
            shown += look(terminal, 6 + row, 13, 1, 30).substr(0, 30);
        EXPECT_EQ(shown, letters + "4!44444444");
        EXPECT_TRUE(speed || terminal.received().size() < 2 * letters.size())
            << "an update for each read, not each key";
    }
}

TEST(Screen, SendsWholeScreensToASlowReader)
{
    Terminal terminal({.argv = {KULGUI_TEST_PROGRAMS "/keys", "flood"}, .columns = 300, .rows = 80});
    const auto expected = [](int y, int x) { return std::string(1, static_cast<char>('a' + (x + y) % 26)); };
    EXPECT_TRUE(terminal.waitFor([&] { return terminal.cell(79, 299).glyph == expected(79, 299); }));
    ASSERT_TRUE(terminal.settle());
    EXPECT_GT(terminal.received().size(), 100000U);
    for (int y = 0; y < terminal.rows(); ++y) {
        for (int x = 0; x < terminal.columns(); ++x)
            ASSERT_EQ(terminal.cell(y, x).glyph, expected(y, x)) << y << ' ' << x;
    }
}

} // namespace
