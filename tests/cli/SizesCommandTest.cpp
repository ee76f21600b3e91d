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

Result RunSizes(const std::vector<std::string>& args)
{
    StartOptions options;
    options.command = "sizes";
    options.commandArgs = args;
    std::ostringstream out, err;
    const int code = RunCommand(options, out, err);
    return {code, out.str(), err.str()};
}

// The title lines of the printed tables: the first line and each line after an empty one.
std::vector<std::string> Titles(const std::string& out)
{
    std::vector<std::string> titles;
    std::istringstream in(out);
    bool next = true;
    for (std::string line; std::getline(in, line);) {
        if (next)
            titles.push_back(line);
        next = line.empty();
    }
    return titles;
}

} // namespace

TEST(SizesCommand, PrintsOneTableAsDrawn)
{
    const Result r = RunSizes({"men", "SHOES"});
    EXPECT_EQ(r.code, 0);
    EXPECT_EQ(r.out,
        "Men's Shoes\n"
        "USA        5     6      7      8      9    10   11   12\n"
        "Europe  37   38   39.5  41    42   43  44.5 46\n"
        "UK         4      5     6       7      8     9     10   11\n"
        "Japan                24.5 25.5 26.5 27.5 28   29\n");
    EXPECT_EQ(r.err, "");
}

TEST(SizesCommand, PrintsEveryMatchingTable)
{
    using Lines = std::vector<std::string>;
    struct Case
    {
        Lines args;
        Lines titles;
    };
    const Case cases[] = {
        {{"Children"}, {"Children's Clothing", "Children's Shoes", "Children's Trousers"}},
        {{"women", "Shirts and Sweaters"}, {"W's Blouses/Sweaters"}},
        // A garment of several words may also come as separate words.
        {{"MEN", "shirts", "and", "sweaters"}, {"Men's Shirts"}},
    };
    for (const Case& c : cases) {
        const Result r = RunSizes(c.args);
        EXPECT_EQ(r.code, 0) << c.args.front();
        EXPECT_EQ(Titles(r.out), c.titles) << c.args.front();
    }

    const Result all = RunSizes({});
    EXPECT_EQ(all.code, 0);
    EXPECT_EQ(Titles(all.out).size(), 12u);
    // Title, four rows and the separating empty line per table, no separator after the last.
    EXPECT_EQ(std::ranges::count(all.out, '\n'), 12 * 6 - 1);
}

TEST(SizesCommand, RejectsUnknownNamesAndOptions)
{
    struct Case
    {
        std::vector<std::string> args;
        std::string error; // part of the message
    };
    const Case cases[] = {
        {{"kids"}, "unknown wearer \"kids\"; choose one of: Men, Women, Children"},
        {{"men", "bras"}, "unknown garment \"bras\"; choose one of: Shirts and Sweaters, Shoes, Suits, Trousers"},
        {{"children", "suits"}, "choose one of: Shirts and Sweaters, Shoes, Trousers"},
        {{"--wide"}, "unknown option --wide"},
        {{"men", "-x"}, "unknown option -x"},
    };
    for (const Case& c : cases) {
        const Result r = RunSizes(c.args);
        EXPECT_EQ(r.code, 2) << c.error;
        EXPECT_EQ(r.out, "") << c.error;
        EXPECT_NE(r.err.find(c.error), std::string::npos) << r.err;
    }
}
