// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandFixture.h"

#include <gtest/gtest.h>

#include <tuple>

using SettingsCommand = CommandFixture;

TEST_F(SettingsCommand, SetThenGetGivesBackWhatWasStored)
{
    // VALUE, --type, what get prints. Negative numbers are stored as their two's complement:
    // -1 is 2^32 - 1 and -2147483648 is 2^31.
    const std::tuple<std::string, std::string, std::string> cases[] = {{"4294967295", "dword", "4294967295"},
        {"-1", "dword", "4294967295"}, {"-2147483648", "dword", "2147483648"}, {"", "string", ""},
        {"K\xC3\xB6ln \xF0\x9F\x8C\x8D", "string", "K\xC3\xB6ln \xF0\x9F\x8C\x8D"}}; // U+00F6 and U+1F30D
    for (const auto& [value, type, shown] : cases) {
        EXPECT_EQ(run("settings", {"set", "Wanderkit\\currencies", "curval", value, "--type", type}).code, 0);
        EXPECT_TRUE(
            run("settings", {"get", "WANDERKIT\\Currencies", "curval"}).printed(shown + "\n")); // keys ignore case
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
