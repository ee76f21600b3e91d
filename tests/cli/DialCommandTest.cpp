// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandResult.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

// The rows are checked in the reference tests: here, what is matched and how a row is printed.
TEST(DialCommand, PrintsMatchingRowsTabSeparated)
{
    using Case = std::tuple<std::vector<std::string>, std::string>;
    const Case cases[] = {
        {{"KOREA"}, "South Korea\t+82\t+9\nNorth Korea\t+850\t+9\n"},
        {{"--us", "weymouth"}, "Weymouth\tMassachusetts(MA)\t+781\n"},
        {{"(dc)", "--us"}, "Washington\tDistrict of Columbia(DC)\t+202\n"},
        // Several words are one text.
        {{"--us", "salt", "lake"}, "Salt Lake City\tUtah(UT)\t+801\n"},
    };
    for (const auto& [args, out] : cases) {
        const CommandResult r = CommandResult::of("dial", args);
        EXPECT_EQ(r.code, 0) << out;
        EXPECT_EQ(r.out, out);
        EXPECT_EQ(r.err, "");
    }
}

TEST(DialCommand, CountsTheMatchingRows)
{
    const std::pair<std::vector<std::string>, long> cases[]
        = {{{}, 244}, {{"--us"}, 259}, {{"--us", "new york"}, 13}}; // city or state: every row of New York state
    for (const auto& [args, rows] : cases)
        EXPECT_EQ(std::ranges::count(CommandResult::of("dial", args).out, '\n'), rows) << rows;
}

TEST(DialCommand, ReportsNoMatchAndRejectsUnknownOptions)
{
    const std::pair<std::vector<std::string>, std::string> cases[] = {
        {{"Atlantis"}, "no country contains \"Atlantis\""},
        {{"--us", "Gotham"}, "no city or state contains \"Gotham\""},
    };
    for (const auto& [args, error] : cases) {
        const CommandResult none = CommandResult::of("dial", args);
        EXPECT_EQ(none.code, 0);
        EXPECT_EQ(none.out, "");
        EXPECT_NE(none.err.find(error), std::string::npos) << none.err;
    }
    const CommandResult option = CommandResult::of("dial", {"--uk", "london"});
    EXPECT_EQ(option.code, 2);
    EXPECT_EQ(option.out, "");
    EXPECT_NE(option.err.find("unknown option --uk"), std::string::npos) << option.err;
}
