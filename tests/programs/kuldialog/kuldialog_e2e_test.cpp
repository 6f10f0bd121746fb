// SPDX-License-Identifier: MIT
//
// kuldialog under its three names, by the rows that the bench runs with the other programs.
#include <gtest/gtest.h>

#include "rows.hpp"
#include "terminal.hpp"

namespace {

using namespace kuldialog_rows;
using namespace kultools;

class Kuldialog : public testing::TestWithParam<std::pair<const char*, Name>> {};

TEST_P(Kuldialog, DoesAsItsNameSays)
{
    const auto& [program, name] = GetParam();
    for (const Row& row : kRows) {
        if (!(row.names & name))
            continue;
        const Outcome outcome = run(row, std::string(KULGUI_KULDIALOG_NAMES "/") + program, false);
        EXPECT_TRUE(agrees(row, outcome)) << row.shell << " | " << row.keys << "\n  status " << outcome.status
                                          << ", error \"" << outcome.error << "\", other \"" << outcome.other << '"';
    }
}

TEST_P(Kuldialog, FillsANewScreenWithItsColour)
{
    Terminal terminal(
        {.argv = {std::string(KULGUI_KULDIALOG_NAMES "/") + GetParam().first, "--msgbox", "ready", "5", "20"}});
    ASSERT_TRUE(terminal.waitForText("ready") && terminal.settle());
    const int background = terminal.cell(0, 0).background;
    terminal.resize(100, 30);
    EXPECT_TRUE(terminal.waitFor([&] { return terminal.cell(29, 99).background == background; }));
}

INSTANTIATE_TEST_SUITE_P(Names, Kuldialog,
                         testing::Values(std::pair("whiptail", kWhiptail), std::pair("dialog", kDialog),
                                         std::pair("kuldialog", kOwn)),
                         [](const auto& test) { return std::string(test.param.first); });

} // namespace
