// SPDX-License-Identifier: MIT
//
// The ready dialogs, each by keys on screens of three sizes.
#include <gtest/gtest.h>

#include "support/temporary_file.hpp"
#include "terminal.hpp"

namespace {

using namespace kultools;

struct Row {
    const char* name;
    std::vector<std::string> words;
    std::vector<std::string> keys; // names of keys, or what they send
    std::string result;
};

class Ready : public testing::TestWithParam<std::pair<int, int>> {};

TEST_P(Ready, GivesResults)
{
    const auto [columns, height] = GetParam();
    const kultest::TemporaryFile file("first\nsecond line\nthird\n");
    const Row rows[] = {
        {"tell", {"tell"}, {"enter"}, "=0="},
        {"tell, left", {"tell"}, {"esc"}, "=-1="},
        {"ask", {"ask"}, {"tab", "enter"}, "=2="},
        {"ask, the default", {"ask"}, {" "}, "=1="},
        {"enter", {"enter"}, {"c", "\xc3\xa4", "enter"}, "=0 abc\xc3\xa4="},
        {"enter, no more than fits", {"enter"}, {"1234567890", "enter"}, "=0 ab12345="},
        {"enter, left", {"enter"}, {"c", "esc"}, "=-1 ab="},
        {"enter, cancelled", {"secret"}, {"c", "tab", "tab", "enter"}, "=-1 ab="},
        {"form", {"form", "3"}, {"x", "down", "2", "tab", "y", "enter"}, "=0 0x 12 2y="},
        {"form, a bad line keeps the user",
         {"form", "3"},
         {"down", "x", "enter", "backspace", "3", "enter"},
         "=0 0 13 2="},
        {"form, long",
         {"form", "12"},
         {"down", "down", "down", "down", "down", "down", "z", "enter"},
         "=0 0 1 2 3 4 5 6z 7 8 9 10 11="},
        {"form, back from the buttons, and to the first of them",
         {"form", "3"},
         {"tab", "tab", "tab", "\033[Z", "x", "tab", "up", "y", "tab", "enter"},
         "=0 0 1 2xy="},
        {"choose", {"choose", "5"}, {"down", "enter"}, "=3="},
        {"choose, by a letter", {"choose", "10000"}, {"C", "c", "end", "up", "enter"}, "=9998="},
        {"choose of none", {"choose", "0"}, {"enter"}, "=-1="},
        {"choose, cancelled", {"choose", "5"}, {"tab", "right", "enter"}, "=-1="},
        {"option", {"option", "5"}, {"down", " ", "up", "enter"}, "=3="},
        {"check", {"check", "4"}, {" ", "down", " ", "enter"}, "=0 0 1 1 0="},
        {"check, left", {"check", "4"}, {" ", "esc"}, "=-1 1 0 1 0="},
        {"view", {"view", file.path()}, {"down", "enter"}, "=0="},
        {"view, no file", {"view", "/none"}, {}, "=-2="},
        {"progress", {"progress"}, {"enter"}, "=0="},
        {"run", {"run", "printf '\\033]0;title\\007out\\033[2Jput'; exit 3"}, {"enter"}, "=3="},
        {"run, ended", {"run", "sleep 60"}, {"enter", "left", "enter"}, "=143="},
        {"lent before", {"lend"}, {"enter"}, "=1="},
        {"pick", {"pick", file.directory()}, {"down", "enter"}, "=0 " + file.path() + "="},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        std::vector<std::string> words = row.words;
        words.insert(words.begin(), KULGUI_TEST_PROGRAMS "/ready");
        Terminal terminal({.argv = words, .columns = columns, .rows = height, .environment = {"LC_ALL=C.UTF-8"}});
        for (const std::string& key : row.keys)
            terminal.press(keyBytes(key).value_or(key));
        EXPECT_EQ(terminal.wait(), 0) << terminal.text();
        const std::string& out = terminal.received();
        EXPECT_NE(out.find(row.result), std::string::npos)
            << out.substr(out.size() - std::min<std::size_t>(out.size(), 200));
        EXPECT_EQ(out.find("title\a"), std::string::npos) << "a command's output commands nothing";
    }
}

INSTANTIATE_TEST_SUITE_P(Screens, Ready, testing::Values(std::pair(80, 24), std::pair(40, 9), std::pair(20, 5)));

} // namespace
