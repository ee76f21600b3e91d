// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandResult.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

// The rows are checked in the reference tests: here, what is matched and how a row is printed. No match is
// said on the error stream and is no failure.
TEST(DialCommand, PrintsMatchingRowsTabSeparated)
{
    const std::tuple<std::vector<std::string>, std::string, std::string> cases[] = {
        {{"KOREA"}, "South Korea\t+82\t+9\nNorth Korea\t+850\t+9\n", ""},
        {{"--us", "salt", "lake"}, "Salt Lake City\tUtah(UT)\t+801\n", ""}, // several words are one text
        {{"Atlantis"}, "", "no country contains \"Atlantis\""},
        {{"--us", "Gotham"}, "", "no city or state contains \"Gotham\""},
    };
    for (const auto& [args, out, message] : cases) {
        const CommandResult r = CommandResult::of("dial", args);
        EXPECT_EQ(std::tie(r.code, r.out), std::tuple(0, out));
        EXPECT_EQ(r.err.empty(), message.empty()) << r.err;
        EXPECT_NE(r.err.find(message), std::string::npos) << r.err;
    }
    EXPECT_TRUE(CommandResult::of("dial", {"--uk", "london"}).refused(2, "unknown option --uk"));
}

// Each table is its title, four rows (their texts are checked in the reference tests) and an empty line.
TEST(SizesCommand, PrintsEveryMatchingTable)
{
    const std::tuple<std::vector<std::string>, long, std::string> cases[] = {
        {{}, 12, "Men's Shirts\nUSA "}, {{"Children"}, 3, "Children's Clothing\n"},
        {{"MEN", "shirts", "and", "sweaters"}, 1, "Men's Shirts\n"}, // a garment's words may come apart
    };
    for (const auto& [args, tables, first] : cases) {
        const CommandResult r = CommandResult::of("sizes", args);
        EXPECT_EQ(r.code, 0) << r.err;
        EXPECT_TRUE(r.out.starts_with(first));
        EXPECT_EQ(std::ranges::count(r.out, '\n'), 6 * tables - 1);
    }
    EXPECT_TRUE(CommandResult::of("sizes", {"children"})
                    .out.ends_with("\n\nChildren's Trousers\n"
                                   "USA           2          4           6            8          10\n"
                                   "Europe  40-55    50-55    60-65    70-75    80-85\n"
                                   "UK         16-18    20-22    24-26    28-30    32-34\n"
                                   "Japan      90        100        110        120       130\n"));

    const std::tuple<std::vector<std::string>, std::string> refused[]
        = {{{"kids"}, "unknown wearer \"kids\"; choose one of: Men, Women, Children"},
            {{"men", "bras"}, "unknown garment \"bras\"; choose one of: Shirts and Sweaters, Shoes, Suits, Trousers"},
            {{"children", "suits"}, "choose one of: Shirts and Sweaters, Shoes, Trousers"},
            {{"men", "-x"}, "unknown option -x"}};
    for (const auto& [args, error] : refused)
        EXPECT_TRUE(CommandResult::of("sizes", args).refused(2, error));
}
