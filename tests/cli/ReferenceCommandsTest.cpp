// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandResult.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <tuple>

namespace {

// The first line and every line after an empty one: the titles of the tables `sizes` printed.
std::vector<std::string> titles(const std::string& out)
{
    std::vector<std::string> found;
    std::istringstream in(out);
    bool title = true;
    for (std::string line; std::getline(in, line); title = line.empty()) {
        if (title)
            found.push_back(line);
    }
    return found;
}

} // namespace

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

// Each table is its title and four rows (their texts are checked in the reference tests).
TEST(SizesCommand, PrintsEveryMatchingTable)
{
    using Titles = std::vector<std::string>;
    const std::tuple<std::vector<std::string>, Titles> cases[] = {
        {{"Children"}, {"Children's Clothing", "Children's Shoes", "Children's Trousers"}},
        {{"MEN", "shirts", "and", "sweaters"}, {"Men's Shirts"}}, // a garment's words may come apart
    };
    for (const auto& [args, expected] : cases) {
        const CommandResult r = CommandResult::of("sizes", args);
        EXPECT_EQ(r.code, 0) << r.err;
        EXPECT_EQ(titles(r.out), expected);
        EXPECT_EQ(std::ranges::count(r.out, '\n'), 6 * static_cast<long>(expected.size()) - 1);
    }
    const CommandResult all = CommandResult::of("sizes", {});
    EXPECT_EQ(titles(all.out).size(), 12u);
    EXPECT_TRUE(all.out.starts_with("Men's Shirts\nUSA "));
    EXPECT_TRUE(all.out.ends_with("Children's Trousers\n"
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
