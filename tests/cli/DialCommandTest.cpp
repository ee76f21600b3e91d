// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandResult.h"

#include <gtest/gtest.h>

#include <tuple>

// The rows are checked in the reference tests: here, what is matched and how a row is printed.
TEST(DialCommand, PrintsMatchingRowsTabSeparated)
{
    const std::tuple<std::vector<std::string>, std::string> cases[] = {
        {{"KOREA"}, "South Korea\t+82\t+9\nNorth Korea\t+850\t+9\n"},
        {{"--us", "salt", "lake"}, "Salt Lake City\tUtah(UT)\t+801\n"}, // several words are one text
        // No match is said on the error stream and is no failure.
        {{"Atlantis"}, ""},
        {{"--us", "Gotham"}, ""},
    };
    for (const auto& [args, out] : cases) {
        const CommandResult r = CommandResult::of("dial", args);
        EXPECT_EQ(r.code, 0) << out;
        EXPECT_EQ(r.out, out);
        EXPECT_EQ(r.err.empty(), !out.empty()) << r.err;
    }
    EXPECT_NE(CommandResult::of("dial", {"Atlantis"}).err.find("no country contains \"Atlantis\""), std::string::npos);
    EXPECT_NE(CommandResult::of("dial", {"--us", "Gotham"}).err.find("no city or state contains \"Gotham\""),
        std::string::npos);
    EXPECT_TRUE(CommandResult::of("dial", {"--uk", "london"}).refused(2, "unknown option --uk"));
}
