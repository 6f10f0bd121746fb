// The tests trust their terminal; here it has to earn that, with the shell as the program.
#include <gtest/gtest.h>
#include <stdexcept>
#include <string>
#include <sys/wait.h>
#include <system_error>

#include "picture.hpp"
#include "terminal.hpp"

using namespace kultools;

namespace {

Launch shell(const std::string& script, const std::string& term = "xterm-256color")
{
    return {.argv = {"sh", "-c", script}, .columns = 20, .rows = 4, .term = term};
}

// The first row of the screen after the script.
std::string shown(Launch launch)
{
    Terminal terminal(launch);
    EXPECT_EQ(terminal.wait(), 0);
    return terminal.row(0);
}

TEST(Emulator, DrawsTheLinesOfEachTerminal)
{
    const std::string letters = "tput enacs; tput smacs; printf lqkx; tput rmacs; printf 0lq";
    const struct {
        const char* term;
        std::string script;
        const char* screen;
    } rows[] = {
        {"vt100", letters, "┌─┐│0lq"},
        {"xterm-256color", letters, "┌─┐│0lq"},
        {"linux", letters, "┌─┐│0lq"},
        {"ansi", "tput smacs; printf '\\332\\304\\277\\263\\031'; tput rmacs; printf lq", "┌─┐│↓lq"},
        {"linux", "printf '\\033[11m\\332\\304\\033[31;10m+0'", "┌─+0"},
        {"linux", "tput enacs; tput smacs; printf '+,-.0h\\033[30mq'", "→←↑↓█░─"},
        {"vt100", "tput enacs; tput smacs; printf '+,-.0'", "+,-.0"},
        {"linux", "printf '\\342\\224\\214\\342\\224\\200'", "┌─"},
        {"xterm-256color", "printf '\\342\\224\\214-\\033[5b|'", "┌------|"},
    };
    for (const auto& row : rows) {
        for (const char* locale : {"LC_ALL=C", "LC_ALL=C.UTF-8"}) {
            SCOPED_TRACE(std::string(row.term) + ' ' + locale + ' ' + row.script);
            Launch launch = shell(row.script, row.term);
            launch.environment = {locale};
            EXPECT_EQ(shown(launch), row.screen);
        }
    }
}

TEST(Emulator, TellsColoursAndAttributes)
{
    Emulator screen(20, 2, "xterm-256color");
    screen.feed("\033[1;31;44mA\033[0;38;5;208;7;4mB\033[0;93;5mC\033[0mD\033[?25l");
    EXPECT_EQ(screen.cell(0, 0), (Cell{.glyph = "A", .foreground = 1, .background = 4, .bold = true}));
    EXPECT_EQ(screen.cell(0, 1), (Cell{.glyph = "B", .foreground = 208, .underline = true, .reverse = true}));
    EXPECT_EQ(screen.cell(0, 2), (Cell{.glyph = "C", .foreground = 11, .blink = true}));
    EXPECT_EQ(screen.cell(0, 3), Cell{.glyph = "D"});
    EXPECT_EQ(screen.cell(0, 20), Cell{});
    EXPECT_EQ(screen.row(0, Blanks::Keep), "ABCD                ");
    EXPECT_EQ(screen.cursor().column, 4);
    EXPECT_FALSE(screen.cursor().visible);
}

TEST(Emulator, CountsWhatIsPaintedOnAScreenOfAnySize)
{
    Emulator screen(20, 2, "xterm-256color");
    screen.feed("abc");
    screen.mark();
    EXPECT_EQ(screen.paintedMost(), 0);
    screen.feed("\rab"); // the same glyphs in the same look are painted all the same
    EXPECT_EQ(screen.received(), "\rab");
    EXPECT_EQ(screen.painted(0, 0), 1);
    EXPECT_EQ(screen.painted(0, 2), 0);
    screen.feed("\r\033[K"); // and so is what is erased
    EXPECT_EQ(screen.paintedMost(), 2);
    EXPECT_EQ(screen.painted(0, 19), 1);
    EXPECT_EQ(screen.painted(1, 0), 0);

    EXPECT_THROW(Emulator(0, 24, "linux"), std::invalid_argument);
    EXPECT_THROW(Emulator(80, 1001, "linux"), std::invalid_argument);
    Emulator dot(1, 1, "linux");
    dot.feed("abc\n\033[5;5Hx");
    EXPECT_EQ(dot.text(), "x\n");
}

TEST(Terminal, PassesKeysAndTellsHowTheProgramEnded)
{
    Terminal typed(shell("read line; echo \"<$line>\"; exit 7"));
    EXPECT_EQ(typed.wait(0), std::nullopt);
    typed.press("ab");
    typed.sendSlowly("cd\r", 1);
    EXPECT_TRUE(typed.waitForText("<abcd>"));
    EXPECT_EQ(typed.wait(), W_EXITCODE(7, 0));
    EXPECT_FALSE(typed.running());
    EXPECT_FALSE(typed.waitForText("never"));
}

TEST(Terminal, SetsUpTheProgram)
{
    Launch launch = shell("echo $(stty size) $TERM $LINES$COLUMNS $A", "linux");
    launch.environment = {"A=b=c"};
    EXPECT_EQ(shown(launch), "4 20 linux b=c");
    EXPECT_THROW(Terminal({.argv = {"/no/such/program"}}), std::system_error);
}

TEST(Picture, ShowsTheSameScreen)
{
    Emulator screen(12, 2, "xterm-256color");
    Emulator copy(12, 2, "xterm-256color");
    screen.feed("\033[37;44m\033[2J│\033[1;4;33m a < b & c\033[0;44m│\r\n\033[7m ▒ \033[0m ");
    std::string text = asAnsi(screen);
    text.replace(text.find('\n'), 1, "\r\n");
    text.resize(text.size() - 1); // or the screen would scroll
    copy.feed(text);
    for (int place = 0; place < 24; ++place)
        EXPECT_EQ(copy.cell(place / 12, place % 12), screen.cell(place / 12, place % 12)) << place;
    const std::string picture = asSvg(screen);
    EXPECT_NE(picture.find("> a &lt; b &amp; c</text>"), std::string::npos);
    EXPECT_NE(picture.find("width='108'"), std::string::npos) << "cells of a look are one";
}

} // namespace
