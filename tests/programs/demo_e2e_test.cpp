// SPDX-License-Identifier: MIT
//
// The demonstration's page of items that show, on facts that the test gives it.
#include <gtest/gtest.h>

#include "terminal.hpp"

namespace {

using namespace kultools;

Launch demo(const char* term, int columns = 80, int rows = 24, const char* script = "exec " KULGUI_DEMO)
{
    return {.argv = {"sh", "-c", script},
            .columns = columns,
            .rows = rows,
            .term = term,
            .environment = {"KULGUI_DEMO_PROC=" KULGUI_DEMO_PROC, "LC_ALL=C.UTF-8"}};
}

void press(Terminal& terminal, std::initializer_list<const char*> keys)
{
    ASSERT_TRUE(terminal.waitForText("Quit"));
    for (const char* key : keys)
        terminal.press(keyBytes(key).value_or(key));
    ASSERT_TRUE(terminal.settle());
}

TEST(Demo, FitsItsPagesToASmallScreen)
{
    Terminal terminal(demo("linux", 40, 12));
    press(terminal, {"A", "enter"});
    EXPECT_TRUE(terminal.waitForText("Host name")) << terminal.text();
    EXPECT_NE(terminal.text().find("│ Back │ │ Quit │"), std::string::npos) << terminal.text();
}

TEST(Demo, ShowsItsItems)
{
    Terminal terminal(demo("xterm-256color"));
    press(terminal, {"down", "enter", "enter"});
    EXPECT_EQ(terminal.row(0), "gateway   6.1.0-32-arm64   up 26:03:04   load1 0.75   mem 50 %");
    EXPECT_EQ(terminal.row(8), "    │ │(router@example) (gcc 12.2.0, GNU ld    │  │▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒▒│ │");
    EXPECT_EQ(terminal.row(15), "    │ MemTotal   MemFree   Cached   Dirty                                  │");
    EXPECT_EQ(terminal.row(17), "    │ │400 MiB. Memory that nobody uses for anything.                 │    │");
}

TEST(Demo, SpeaksFourLanguages)
{
    for (const char* term : {"xterm-256color", "linux", "tmux"}) {
        SCOPED_TRACE(term);
        Terminal terminal(demo(term));
        press(terminal, {"l", "enter", "down", "down", " ", "tab", "Z", "o", "ë", " ", "李"});
        ASSERT_TRUE(terminal.waitForText("你好，Zoë 李！")) << terminal.text();
        EXPECT_EQ(terminal.row(6), "          │ │( ) Deutsch   │  │应用更改后，设备将重新启动。请不要  │ │");
        EXPECT_EQ(terminal.row(12), "          │ 姓名      Zoë 李                                         │");
    }
}

// What lies below is not painted first.
TEST(Demo, QuitsFromAPageInAFewBytes)
{
    Terminal terminal(demo("xterm-256color"));
    press(terminal, {"down", "down", "enter", "tab", "right"});
    terminal.mark();
    terminal.press("\r");
    EXPECT_EQ(terminal.wait(), 0);
    EXPECT_LT(terminal.received().size(), 200U);
}

// As on a serial line.
TEST(Demo, NoticesANewSizeWithoutASignal)
{
    Terminal terminal(demo("linux", 80, 24, "trap '' WINCH; exec " KULGUI_DEMO));
    ASSERT_TRUE(terminal.waitForText("Quit") && terminal.settle());
    terminal.resize(100, 30);
    EXPECT_TRUE(terminal.waitFor([&] { return terminal.cell(1, 99).glyph == "─"; })) << "the line below the title";
}

} // namespace
