// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandFixture.h"

#include <gtest/gtest.h>

#include <tuple>

namespace {

// Two favourites and three country lists; Paris is listed by two countries.
class FavouritesCommand : public CommandFixture
{
protected:
    void SetUp() override
    {
        device.write("cities.wet", "2\nFrance;Paris;2988507\nItaly;Rome;3169070\n");
        device.write("weatcs/France", "Paris;2988507\nLyon;2996944\r\n>\nNice;2990440\n");
        device.write("weatcs/United States", "Paris;4717560\nNew York;5128581\n");
        device.write("weatcs/Italy", "Rome;3169070\n");
    }
    CommandResult favourites(const std::vector<std::string>& args) const { return run("favourites", args); }
};

const std::string Paris = "Paris\t2988507\t01/01/2000\tFrance\n";
const std::string Rome = "Rome\t3169070\t01/01/2000\tItaly\n";

} // namespace

TEST_F(FavouritesCommand, AddWritesACityOfTheCountryListsAndRefusalsSayWhy)
{
    const std::tuple<std::vector<std::string>, int, std::string, std::string> cases[] = {
        // The carriage return before the line feed is no part of the code.
        {{"add", "lyon"}, 0, "Lyon\t2996944\t01/01/2000\tFrance\n", ""},
        {{"add", "New", "York"}, 0, "New York\t5128581\t01/01/2000\tUnited States\n", ""},
        {{"add", "PARIS:united states"}, 0, "Paris\t4717560\t01/01/2000\tUnited States\n", ""},
        {{"add", "Paris"}, 2, "", "say which one as city:country:\n  Paris:France\n  Paris:United States\n"},
        // Nice stands after the line that ends the list.
        {{"add", "Nice"}, 1, "", "no city of the weather country lists is named \"Nice\"\n"},
        {{"add", "york"}, 1, "", "names that contain it: New York:United States\n"},
        {{"add"}, 2, "", "Usage: wanderkit favourites [add CITY | remove FAVOURITE]"},
        {{"rename", "Rome"}, 2, "", "unexpected arguments"},
        {{"remove", "Atlantis"}, 1, "", "no favourite is named or numbered \"Atlantis\""},
        {{"remove", "5"}, 1, "", "no favourite is named or numbered \"5\""}, // one past the five favourites
    };
    for (const auto& [args, code, out, message] : cases) {
        const CommandResult result = favourites(args);
        EXPECT_EQ(std::tie(result.code, result.out), std::tie(code, out)) << args.back();
        EXPECT_NE(result.err.find(message), std::string::npos) << result.err;
    }
}

TEST_F(FavouritesCommand, RemoveUndoesAdd)
{
    // A city already a favourite is written again, as the dialog does; one removal leaves one.
    EXPECT_EQ(favourites({"add", "Rome"}).out, Rome);
    EXPECT_EQ(favourites({"remove", "rome"}).out, Rome);
    EXPECT_EQ(favourites({}).out, Paris + Rome);
    EXPECT_EQ(favourites({"remove", "0"}).out, Paris);
    EXPECT_EQ(favourites({}).out, Rome);
}

using SettingsCommand = CommandFixture;

TEST_F(SettingsCommand, SetThenGetGivesBackWhatWasStored)
{
    // VALUE, --type, what get prints (keys ignore case). Negative numbers are stored as their two's
    // complement: -1 is 2^32 - 1 and -2147483648 is 2^31.
    const std::tuple<std::string, std::string, std::string> cases[] = {{"4294967295", "dword", "4294967295"},
        {"-1", "dword", "4294967295"}, {"-2147483648", "dword", "2147483648"}, {"", "string", ""},
        {"K\xC3\xB6ln \xF0\x9F\x8C\x8D", "string", "K\xC3\xB6ln \xF0\x9F\x8C\x8D"}}; // U+00F6 and U+1F30D
    for (const auto& [value, type, shown] : cases) {
        EXPECT_EQ(run("settings", {"set", "Wanderkit\\currencies", "curval", value, "--type", type}).code, 0);
        EXPECT_TRUE(run("settings", {"get", "WANDERKIT\\Currencies", "curval"}).printed(shown + "\n"));
    }
}

TEST_F(SettingsCommand, ListsResetsAndRefuses)
{
    ASSERT_EQ(run("settings", {"set", "Wanderkit\\wrldclk", "clock1", "100"}).code, 0);
    ASSERT_EQ(run("settings", {"set", "Wanderkit\\map", "note", "x y", "--type=string"}).code, 0);
    // Ordered by key, then name; keys as stored, case-folded.
    EXPECT_TRUE(
        run("settings", {}).printed("wanderkit\\map\tnote\tstring\tx y\nwanderkit\\wrldclk\tclock1\tdword\t100\n"));
    EXPECT_EQ(run("settings", {"reset"}).code, 0);
    EXPECT_TRUE(run("settings", {"get", "Wanderkit\\wrldclk", "clock1"})
                    .refused(1, "no value \"clock1\" under \"Wanderkit\\wrldclk\""));

    // What cannot be stored is refused, and nothing is.
    const std::vector<std::string> cases[] = {{"set", "Wanderkit", "n", "4294967296"},
        {"set", "Wanderkit", "n", "-2147483649"}, {"set", "Wanderkit", "n", "12abc"}, {"set", "Wanderkit", "n", ""},
        {"set", "Wanderkit", "n", "1", "--type", "qword"}, {"set", "Wanderkit", "n"}, {"get", "Wanderkit"},
        {"frobnicate"}, {"--verbose"}};
    for (const auto& args : cases)
        EXPECT_TRUE(run("settings", args).refused(2, "wanderkit settings")) << testing::PrintToString(args);
    EXPECT_TRUE(run("settings", {}).printed(""));
}
