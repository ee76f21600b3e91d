// SPDX-License-Identifier: GPL-3.0-or-later
#include "units/UnitCatalogue.h"

#include "units/UnitLists.h"

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <tuple>

namespace {

// A catalogue built in a fresh store in memory.
struct BuiltCatalogue
{
    std::unique_ptr<ObjectStore> store = ObjectStore::openInMemory();
    UnitCatalogue catalogue {*store};

    BuiltCatalogue() { catalogue.Build(); }
};

} // namespace

TEST(UnitCatalogue, AStoreWithAnyUnitIsNotRefilled)
{
    BuiltCatalogue built;
    UnitCatalogue& catalogue = built.catalogue;
    while (catalogue.RecordCount() > 1)
        ASSERT_TRUE(catalogue.DeleteUnitAt(1));
    EXPECT_TRUE(catalogue.UpdateUnitAt(0, L"3", L"furlong/fortnight", L"0.000166"));
    EXPECT_FALSE(catalogue.UpdateUnitAt(1, L"1", L"Rod", L"5.0292"));
    EXPECT_EQ(catalogue.Category(0) + catalogue.Name(0) + catalogue.Factor(0), L"3furlong/fortnight0.000166");

    catalogue.Build();
    UnitCatalogue(*built.store).Build(); // by another accessor too
    EXPECT_EQ(catalogue.RecordCount(), 1);
    EXPECT_EQ(UnitLists::Read(catalogue).Names(3), std::vector<std::wstring> {L"furlong/fortnight"});
}

TEST(UnitCatalogue, BuildWritesEveryUnitAndTheListsReadItByCategoryRuns)
{
    BuiltCatalogue built;
    UnitCatalogue& catalogue = built.catalogue;
    // 22 + 16 + 24 + 13 + 5 + 23 + 23 units; the last is the short ton, its factor as printed.
    ASSERT_EQ(catalogue.RecordCount(), 126);
    EXPECT_EQ(catalogue.Category(125) + L"|" + catalogue.Name(125) + L"|" + catalogue.Factor(125),
        L"6|Ton [short, US]|907,18474");
    EXPECT_EQ(catalogue.Name(126), L"");
    EXPECT_FALSE(catalogue.SeekTo(126));

    const UnitLists lists = UnitLists::Read(catalogue);
    // The count of a category, and its first and last unit as the screen lists them: each category's run
    // starts with its table's last row.
    const std::tuple<int, std::size_t, std::wstring, std::wstring> cases[] = {{0, 22, L"yard", L"square yard"},
        {1, 16, L"Yard", L"Statue Mile (Mile)"}, {6, 23, L"Tonne", L"Ton [short, US]"}};
    for (const auto& [category, count, first, last] : cases) {
        const auto names = lists.Names(category);
        ASSERT_EQ(names.size(), count) << category;
        EXPECT_EQ(std::tie(names.front(), names.back()), std::tie(first, last)) << category;
    }
    // Temperatures keep their own fixed list, whatever order the records are in.
    EXPECT_EQ(lists.Names(4),
        (std::vector<std::wstring> {L"\u00b0C - Degree Celsius", L"\u00b0F - Degree Fahrenheit", L"Degree Rankine",
            L"Degree Reaumur", L"K - Kelvin"}));
    EXPECT_EQ(lists.Factor(6, 22), L"907,18474");
    EXPECT_EQ(lists.Factor(6, 23), L"");
    EXPECT_EQ(lists.Factor(7, 0), L"");
    EXPECT_TRUE(lists.Names(7).empty());
}

TEST(UnitLists, MissingOrExtraRecordsShiftOnlyWhatTheRunsDictate)
{
    // What was deleted or added, and the counts read for the seven categories.
    const std::tuple<const char*, std::uint32_t, std::uint32_t, int, std::array<std::size_t, 7>> cases[] = {
        {"the pressures deleted: an empty list", 38, 24, 0, {22, 16, 0, 13, 5, 23, 23}},
        // Five positions are skipped for the temperatures whatever they hold: here five volumes.
        {"the temperatures deleted", 75, 5, 0, {22, 16, 24, 13, 5, 18, 23}},
        // At most 150 units are kept, and the next category is still found.
        {"140 areas added", 0, 0, 140, {150, 16, 24, 13, 5, 23, 23}},
    };
    for (const auto& [what, first, deleted, added, counts] : cases) {
        BuiltCatalogue built;
        for (std::uint32_t i = 0; i < deleted; ++i)
            ASSERT_TRUE(built.catalogue.DeleteUnitAt(first)) << what;
        for (int i = 0; i < added; ++i)
            ASSERT_TRUE(built.catalogue.AddUnit(L"0", L"extra", L"1")) << what;
        const UnitLists lists = UnitLists::Read(built.catalogue);
        for (int category = 0; category < 7; ++category)
            EXPECT_EQ(lists.Names(category).size(), counts[static_cast<std::size_t>(category)]) << what << category;
        EXPECT_EQ(lists.Names(1).front(), L"Yard") << what;
    }
}
