// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/CommandRunner.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

namespace {

struct Result
{
    int code;
    std::string out;
    std::string err;
};

Result RunDial(const std::vector<std::string>& args)
{
    StartOptions options;
    options.command = "dial";
    options.commandArgs = args;
    std::ostringstream out, err;
    const int code = RunCommand(options, out, err);
    return {code, out.str(), err.str()};
}

} // namespace

TEST(DialCommand, PrintsMatchingRowsTabSeparated)
{
    struct Case
    {
        std::vector<std::string> args;
        std::string out;
    };
    const Case cases[] = {
        {{"BERMUDA"}, "Bermuda\t+1 +441 or 809 \t-4\n"},
        {{"korea"}, "South Korea\t+82\t+9\nNorth Korea\t+850\t+9\n"},
        {{"nepal"}, "Nepal \t+977\t+5.75\n"},
        {{"--us", "weymouth"}, "Weymouth\tMassachusetts(MA)\t+781\n"},
        {{"(dc)", "--us"}, "Washington\tDistrict of Columbia(DC)\t+202\n"},
        // Several words are one text.
        {{"--us", "salt", "lake"}, "Salt Lake City\tUtah(UT)\t+801\n"},
    };
    for (const Case& c : cases) {
        const Result r = RunDial(c.args);
        EXPECT_EQ(r.code, 0) << c.out;
        EXPECT_EQ(r.out, c.out);
        EXPECT_EQ(r.err, "");
    }
}

TEST(DialCommand, PrintsWholeTablesWithoutText)
{
    EXPECT_EQ(std::ranges::count(RunDial({}).out, '\n'), 244);
    EXPECT_EQ(std::ranges::count(RunDial({"--us"}).out, '\n'), 259);
}

TEST(DialCommand, ReportsNoMatchAndRejectsUnknownOptions)
{
    const Result none = RunDial({"Atlantis"});
    EXPECT_EQ(none.code, 0);
    EXPECT_EQ(none.out, "");
    EXPECT_NE(none.err.find("no country contains \"Atlantis\""), std::string::npos) << none.err;

    const Result option = RunDial({"--uk", "london"});
    EXPECT_EQ(option.code, 2);
    EXPECT_EQ(option.out, "");
    EXPECT_NE(option.err.find("unknown option --uk"), std::string::npos) << option.err;
}
