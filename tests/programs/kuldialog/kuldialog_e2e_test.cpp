// SPDX-License-Identifier: MIT
//
// kuldialog under its three names, by the rows that the bench runs with the other programs.
#include <gtest/gtest.h>

#include "rows.hpp"

namespace {

using namespace kuldialog_rows;

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

INSTANTIATE_TEST_SUITE_P(Names, Kuldialog,
                         testing::Values(std::pair("whiptail", kWhiptail), std::pair("dialog", kDialog),
                                         std::pair("kuldialog", kOwn)),
                         [](const auto& test) { return std::string(test.param.first); });

} // namespace
