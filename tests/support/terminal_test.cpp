// The tests trust their terminal; here it has to earn that, with the shell as the program.
#include <gtest/gtest.h>
#include <stdexcept>
#include <string>

#include "picture.hpp"
#include "terminal.hpp"

using namespace kultools;

namespace {

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
            Terminal terminal({.argv = {"sh", "-c", row.script}, .term = row.term, .environment = {locale}});
            EXPECT_EQ(terminal.wait(), 0);
            EXPECT_EQ(terminal.row(0), row.screen);
        }
    }
}

TEST(Emulator, CountsWhatIsPaintedOnAScreenOfAnySize)
{
    Emulator screen(20, 2, "xterm-256color");
    screen.feed("abc");
    screen.mark();
    EXPECT_EQ(screen.paintedMost(), 0);
    screen.feed("\rab\r\033[K"); // the same in the same look is painted as well, and so is what is erased
    EXPECT_EQ(screen.paintedMost(), 2);
    EXPECT_EQ(screen.painted(0, 19), 1);
    EXPECT_EQ(screen.painted(1, 0), 0);
    EXPECT_THROW(Emulator(0, 24, "linux"), std::invalid_argument);
    EXPECT_THROW(Emulator(80, 1001, "linux"), std::invalid_argument);
    Emulator dot(1, 1, "linux");
    dot.feed("abc\n\033[5;5Hx");
    EXPECT_EQ(dot.text(), "x\n");
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
