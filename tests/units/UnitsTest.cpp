// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/WideText.h"
#include "units/UnitCatalogue.h"
#include "units/UnitConversion.h"
#include "units/UnitLists.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <memory>
#include <string>
#include <tuple>

namespace {

using UnitConversion::Convert;
using UnitConversion::Result;

// A catalogue built in a fresh store in memory, and the screen's lists read from it.
struct BuiltCatalogue
{
    std::unique_ptr<ObjectStore> store = ObjectStore::openInMemory();
    UnitCatalogue catalogue {*store};

    BuiltCatalogue() { catalogue.Build(); }
    UnitLists lists() { return UnitLists::Read(catalogue); }
};

// Converts between two units of `category` named as the screen lists them.
Result convert(
    const UnitLists& lists, int category, const std::wstring& from, const std::wstring& to, const std::wstring& amount)
{
    const auto names = lists.Names(category);
    const auto index
        = [&](const std::wstring& name) { return static_cast<int>(std::ranges::find(names, name) - names.begin()); };
    return Convert(lists, category, index(from), index(to), amount);
}

constexpr int Temperatures = 4;

} // namespace

TEST(UnitCatalogue, AStoreWithAnyUnitIsNotRefilled)
{
    BuiltCatalogue built;
    UnitCatalogue& catalogue = built.catalogue;
    while (catalogue.RecordCount() > 1)
        ASSERT_TRUE(catalogue.DeleteUnitAt(1));
    EXPECT_TRUE(catalogue.UpdateUnitAt(0, L"3", L"furlong/fortnight", L"0.000166"));
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
        const UnitLists lists = built.lists();
        for (int category = 0; category < 7; ++category)
            EXPECT_EQ(lists.Names(category).size(), counts[static_cast<std::size_t>(category)]) << what << category;
        EXPECT_EQ(lists.Names(1).front(), L"Yard") << what;
    }
}

TEST(UnitConversion, ConvertsByFactorTextsEvenWhenMissing)
{
    const UnitLists lists = BuiltCatalogue().lists();
    // Category, amount, from, to, and the result worked out by hand.
    const std::tuple<int, std::wstring, std::wstring, std::wstring, std::wstring> cases[] = {
        // 1 ha = 10 000 m²; the "statue mile" is 1609 m as printed; 1.83 / 0.3048 = 6.0039370...
        {0, L"1", L"hectare", L"m\u00b2 - square meter", L"10000.000000"},
        {1, L"1", L"Statue Mile (Mile)", L"m - Meter", L"1609.000000"},
        {1, L"1", L"Fth(Fm) - Fathom", L"Feet", L"6.003937"},
        // The standard atmosphere as stored, 101325.01 Pa; 2e14 Pa in zettapascals is below six decimals.
        {2, L"1", L"atmosphere [standard]", L"hectopascal", L"1013.250100"},
        {2, L"2", L"gigabar", L"zettapascal", L"0.000000"},
        // The decimal comma stops wcstod: "907,18474" is 907.
        {6, L"1", L"Ton [short, US]", L"kg - Kilogram", L"907.000000"},
        {6, L"-2", L"kg - Kilogram", L"gr - Gram", L"-2000.000000"},
    };
    for (const auto& [category, amount, from, to, expected] : cases) {
        const Result result = convert(lists, category, from, to, amount);
        EXPECT_EQ(std::tie(result.text, result.belowAbsoluteZero), std::tuple(expected, false)) << WideToUtf8(from);
    }
    // Only the first 49 characters of the amount field are read; no number converts as 0.
    const std::pair<std::wstring, std::wstring> amounts[]
        = {{L"abc", L"0.000000"}, {L"1e3", L"1000.000000"}, {std::wstring(48, L'0') + L"5", L"5.000000"},
            {std::wstring(49, L'0') + L"5", L"0.000000"}, {std::wstring(49, L' ') + L"7", L"0.000000"}};
    for (const auto& [amount, expected] : amounts)
        EXPECT_EQ(convert(lists, 1, L"m - Meter", L"m - Meter", amount).text, expected) << WideToUtf8(amount);

    // Missing units: a known "from" over a missing "to" divides by zero, and a temperature unit outside the
    // five applies no formula. With no lists at all both factors are 0: 1 × 0 ÷ 0 is printed as it comes.
    EXPECT_EQ(Convert(lists, 1, 0, 99, L"1").text, L"inf");
    EXPECT_EQ(Convert(lists, Temperatures, -1, 0, L"300").text, L"26.850000");
    const Result nan = Convert(UnitLists {}, 2, -1, -1, L"1");
    EXPECT_FALSE(nan.belowAbsoluteZero);
    EXPECT_NE(nan.text.find(L"nan"), std::wstring::npos) << WideToUtf8(nan.text);
}

TEST(UnitConversion, ConvertsEveryPairOfTemperaturesAndStopsBelowAbsoluteZero)
{
    const UnitLists lists = BuiltCatalogue().lists();
    // Two temperatures in °C, °F, °R, °Ré and K, worked out by hand from C = K - 273.15, F = C × 9/5 + 32,
    // R = K × 9/5, Ré = C × 4/5; and just below 0 K in each unit: -274 °C, -460 °F (-0.18 K), -1 °R,
    // -219 °Ré (-0.6 K), -0.5 K.
    const double points[][5] = {{100, 212, 671.67, 80, 373.15}, {-40, -40, 419.67, -32, 233.15}};
    const wchar_t* belowZero[] = {L"-274", L"-460", L"-1", L"-219", L"-0.5"};
    for (int from = 0; from < 5; ++from) {
        for (int to = 0; to < 5; ++to) {
            for (const auto& point : points) {
                const Result result = Convert(lists, Temperatures, from, to, FormatText(L"%.2f", point[from]));
                EXPECT_EQ(
                    std::tie(result.text, result.belowAbsoluteZero), std::tuple(FormatText(L"%f", point[to]), false))
                    << from << " -> " << to << " of " << point[0];
            }
            const Result cold = Convert(lists, Temperatures, from, to, belowZero[from]);
            EXPECT_EQ(std::tie(cold.text, cold.belowAbsoluteZero), std::tuple(L"0", true)) << from;
        }
    }
    // Absolute zero itself converts; 0 K is -273.15 °C.
    EXPECT_EQ(Convert(lists, Temperatures, 0, 4, L"-273.15").text, L"0.000000");
    EXPECT_EQ(Convert(lists, Temperatures, 4, 0, L"0").text, L"-273.150000");
}
