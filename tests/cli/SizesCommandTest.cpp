// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandResult.h"
#include "reference/ClothingSizes.h"
#include "text/StringTable.h"
#include "text/WideText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

namespace {

// A table as it is drawn: its title, then its four rows (their texts are checked in the reference tests).
std::string Drawn(int wearer, int garment)
{
    const ClothingSizes::Table* table = ClothingSizes::Find(wearer, garment);
    std::string text = WideToUtf8(StringTable::Load(table->titleId)) + "\n";
    for (const std::wstring_view row : table->rows)
        text += WideToUtf8(row) + "\n";
    return text;
}

} // namespace

TEST(SizesCommand, PrintsEveryMatchingTableAsDrawn)
{
    // The arguments, and the wearer and garment of each table printed.
    using Case = std::tuple<std::vector<std::string>, std::vector<std::pair<int, int>>>;
    const Case cases[] = {
        {{"men", "SHOES"}, {{0, 1}}},
        {{"Children"}, {{2, 0}, {2, 1}, {2, 2}}},
        {{"women", "Shirts and Sweaters"}, {{1, 2}}},
        // A garment of several words may also come as separate words.
        {{"MEN", "shirts", "and", "sweaters"}, {{0, 0}}},
    };
    for (const auto& [args, tables] : cases) {
        std::string expected;
        for (const auto& [wearer, garment] : tables)
            expected += (expected.empty() ? "" : "\n") + Drawn(wearer, garment);
        const CommandResult r = CommandResult::of("sizes", args);
        EXPECT_EQ(r.code, 0) << args.front();
        EXPECT_EQ(r.out, expected);
        EXPECT_EQ(r.err, "");
    }

    const CommandResult all = CommandResult::of("sizes", {});
    EXPECT_EQ(all.code, 0);
    EXPECT_TRUE(all.out.starts_with(Drawn(0, 0) + "\n"));
    // Title, four rows and the separating empty line per table, no separator after the last.
    EXPECT_EQ(std::ranges::count(all.out, '\n'), 12 * 6 - 1);
}

TEST(SizesCommand, RejectsUnknownNamesAndOptions)
{
    // The arguments, and part of the message.
    using Case = std::tuple<std::vector<std::string>, std::string>;
    const Case cases[] = {
        {{"kids"}, "unknown wearer \"kids\"; choose one of: Men, Women, Children"},
        {{"men", "bras"}, "unknown garment \"bras\"; choose one of: Shirts and Sweaters, Shoes, Suits, Trousers"},
        {{"children", "suits"}, "choose one of: Shirts and Sweaters, Shoes, Trousers"},
        {{"--wide"}, "unknown option --wide"},
        {{"men", "-x"}, "unknown option -x"},
    };
    for (const auto& [args, error] : cases) {
        const CommandResult r = CommandResult::of("sizes", args);
        EXPECT_EQ(r.code, 2) << error;
        EXPECT_EQ(r.out, "") << error;
        EXPECT_NE(r.err.find(error), std::string::npos) << r.err;
    }
}
