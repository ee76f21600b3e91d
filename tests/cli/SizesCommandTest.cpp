// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandResult.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <tuple>

namespace {

// The first line and every line after an empty one: the titles of the tables printed.
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
}

TEST(SizesCommand, RejectsUnknownNamesAndOptions)
{
    const std::tuple<std::vector<std::string>, std::string> cases[]
        = {{{"kids"}, "unknown wearer \"kids\"; choose one of: Men, Women, Children"},
            {{"men", "bras"}, "unknown garment \"bras\"; choose one of: Shirts and Sweaters, Shoes, Suits, Trousers"},
            {{"children", "suits"}, "choose one of: Shirts and Sweaters, Shoes, Trousers"},
            {{"men", "-x"}, "unknown option -x"}};
    for (const auto& [args, error] : cases)
        EXPECT_TRUE(CommandResult::of("sizes", args).refused(2, error));
}
