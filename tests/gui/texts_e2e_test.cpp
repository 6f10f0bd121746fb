// SPDX-License-Identifier: MIT
//
// What texts and frames are on the line.
#include <gtest/gtest.h>

#include <string>

#include "terminal.hpp"

using namespace kultools;

namespace {

Launch texts(const std::string& locale, int edition, const std::string& term = "xterm-256color")
{
    return {.argv = {KULGUI_TEST_PROGRAMS "/texts", locale, std::to_string(edition)}, .term = term};
}

TEST(Texts, DoNothingToTheTerminal)
{
    for (const char* locale : {"C", "C.UTF-8"}) {
        for (const int edition : {1, 2}) {
            SCOPED_TRACE(locale + std::to_string(edition));
            Terminal terminal(texts(locale, edition));
            ASSERT_TRUE(terminal.waitForText("Done") && terminal.settle());
            const std::string sent(terminal.received());
            for (std::size_t i = 0; i < sent.size(); ++i) {
                const auto byte = static_cast<unsigned char>(sent[i]);
                const bool expected = byte >= ' ' && byte != 127 && (byte < 0x80 || std::string(locale) != "C");
                ASSERT_TRUE(expected || std::string("\033\b\t\r\n").find(sent[i]) != std::string::npos)
                    << sent.substr(i < 20 ? 0 : i - 20, 30);
            }
            for (const char* wanted : {"\033]", "\033P", "\033[6n", "\033[2;2HZ", "\033c", "\033Z", "\xe4Z"})
                EXPECT_EQ(sent.find(wanted), std::string::npos) << wanted;
            for (int c = 0x80; c < 0xA0; ++c)
                EXPECT_EQ(sent.find(std::string("\xc2") + static_cast<char>(c)), std::string::npos) << c;
            for (const char* mark : {"\u202e", "\u202a", "\u202c", "\u2066", "\u2069", "\u200e", "\u200f", "\u061c"})
                EXPECT_TRUE(edition == 1 || sent.find(mark) == std::string::npos) << mark;
        }
    }
}

// Where a terminal in UTF-8 has no second alphabet its description says so.
TEST(Texts, LinesAreWhatTheTerminalCanShow)
{
    const struct {
        const char *term, *locale;
        const char *line, *thick;
    } rows[] = {
        {"linux", "C.UTF-8", "\u2500\u2500\u2500", "\u2592"},
        {"putty", "C.UTF-8", "\u2500\u2500\u2500", "\u2592"},
        {"tmux", "C.UTF-8", "\u2500\u2500\u2500", "\u2592"},
        {"vt100", "C.UTF-8", "qqq", "a"},
        {"xterm", "C.UTF-8", "\033(0q", "a"},
        {"linux", "C", "qqq", "a"},
        {"sun", "C", "---", ":"},
        {"sun", "C.UTF-8", "\u2500\u2500\u2500", "\u2592"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(row.term) + ' ' + row.locale);
        Terminal terminal(texts(row.locale, 2, row.term));
        ASSERT_TRUE(terminal.waitForText("Done") && terminal.settle());
        const std::string sent(terminal.received());
        const std::size_t done = sent.rfind("Done");
        EXPECT_NE(sent.find(row.line, done), std::string::npos) << sent.substr(done - 100);
        EXPECT_NE(sent.find(row.thick, done), std::string::npos);
    }
}

} // namespace
