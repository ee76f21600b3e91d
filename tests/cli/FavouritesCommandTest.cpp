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

TEST_F(FavouritesCommand, AddWritesACityOfTheCountryLists)
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
    };
    for (const auto& [args, code, out, message] : cases) {
        const CommandResult result = favourites(args);
        EXPECT_EQ(std::tie(result.code, result.out), std::tie(code, out)) << args.back();
        EXPECT_NE(result.err.find(message), std::string::npos) << result.err;
    }
}

TEST_F(FavouritesCommand, RemoveUndoesAddAndRefusesWhatIsNotThere)
{
    // A city already a favourite is written again, as the dialog does; one removal leaves one.
    EXPECT_EQ(favourites({"add", "Rome"}).out, Rome);
    EXPECT_EQ(favourites({"remove", "rome"}).out, Rome);
    const std::tuple<std::vector<std::string>, int, std::string> refused[] = {
        {{"remove", "Atlantis"}, 1, "no favourite is named or numbered \"Atlantis\""},
        {{"remove", "2"}, 1, "no favourite is named or numbered \"2\""},
    };
    for (const auto& [args, code, message] : refused)
        EXPECT_TRUE(favourites(args).refused(code, message));
    EXPECT_EQ(favourites({}).out, Paris + Rome);
    EXPECT_EQ(favourites({"remove", "0"}).out, Paris);
    EXPECT_EQ(favourites({}).out, Rome);
}
