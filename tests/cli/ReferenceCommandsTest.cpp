// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandFixture.h"

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
        EXPECT_EQ(std::tuple(r.code, r.out.substr(0, first.size())), std::tuple(0, first)) << r.err;
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

// The conversions themselves are checked in the unit tests: here, how units are found and what is printed.
using UnitCommands = CommandFixture;

TEST_F(UnitCommands, ConvertFindsUnitsByNameStartOrCode)
{
    const std::tuple<std::vector<std::string>, std::string> cases[] = {
        {{"1", "ton [SHORT, us]", "KG - KILOGRAM"}, "907.000000\n"}, // names ignore case
        // A negative amount is an amount, not an option; units by code: -0.5 °C is -0.9 + 32 °F.
        {{"-.5", "4:0", "4:1"}, "31.100000\n"},
        {{"2", "short", "Tonne"}, "1.814369\n"}, // a unique start of a name: "Short" is "Short ton"
        {{"1", "yard", "m - Meter"}, "0.914400\n"}, // "Yard" is in three categories; the other unit picks one
    };
    for (const auto& [args, expected] : cases)
        EXPECT_TRUE(run("convert", args).printed(expected)) << args[1];
    const CommandResult cold = run("convert", {"-300", "4:0", "K - Kelvin"});
    EXPECT_EQ(std::tie(cold.code, cold.out, cold.err), std::tuple(1, "0\n", "Below Absolute Zero\n"));
}

TEST_F(UnitCommands, UnitsListsTheCatalogueAndRefusalsNameWhatIsWrong)
{
    EXPECT_TRUE(run("units", {"TEMP"})
                    .printed("Temperatures\n\u00b0C - Degree Celsius\t-\n\u00b0F - Degree "
                             "Fahrenheit\t-\nDegree Rankine\t-\nDegree Reaumur\t-\nK - Kelvin\t-\n"));
    EXPECT_EQ(run("units", {"4"}).out, run("units", {"TEMP"}).out);
    // Seven titles, 126 units, six empty lines between the categories.
    const CommandResult all = run("units", {});
    EXPECT_EQ(std::ranges::count(all.out, '\n'), 7 + 126 + 6);
    EXPECT_TRUE(all.out.starts_with("Areas and Surfaces\nyard\t0.83612736\n"));

    const std::tuple<std::string, std::vector<std::string>, std::string> cases[]
        = {{"convert", {"1", "yard", "yard"},
               "\"yard\" names several units; give one of:\n  0:0\tyard (Areas and Surfaces)\n"
               "  1:0\tYard (Lengths and Distances)\n  5:0\tYard (Volumes)\n"},
            {"convert", {"1", "furlong", "m - Meter"}, "no unit is named \"furlong\""},
            {"convert", {"1", "4:5", "4:0"}, "no unit is named \"4:5\""},
            {"convert", {"1", "Mile", "Liter"}, "\"Mile\" and \"Liter\" are not units of one category"},
            {"convert", {"1", "Mile"}, "usage: wanderkit convert AMOUNT FROM TO"},
            {"convert", {"1", "Mile", "km", "--fast"}, "unknown option --fast"},
            {"units", {"colours"}, "no category \"colours\"; choose 0 to 6 or one of: Areas and Surfaces, "}};
    for (const auto& [command, args, message] : cases)
        EXPECT_TRUE(run(command, args).refused(2, message));
    // The same word on both sides is listed once; different ambiguous words each.
    EXPECT_EQ(std::ranges::count(run("convert", {"1", "yard", "yard"}).err, '\n'), 4);
    EXPECT_EQ(std::ranges::count(run("convert", {"1", "yard", "Yard"}).err, '\n'), 8);
}
