// SPDX-License-Identifier: GPL-3.0-or-later
#include "units/UnitConversion.h"

#include "text/WideText.h"
#include "units/UnitCatalogue.h"
#include "units/UnitLists.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <tuple>

namespace {

using UnitConversion::Convert;
using UnitConversion::Result;

// The screen's lists read from a freshly built catalogue.
UnitLists builtLists()
{
    const auto store = ObjectStore::openInMemory();
    UnitCatalogue catalogue(*store);
    catalogue.Build();
    return UnitLists::Read(catalogue);
}

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

TEST(UnitConversion, ConvertsByFactorTextsEvenWhenMissing)
{
    const UnitLists lists = builtLists();
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
    EXPECT_EQ(UnitConversion::AmountText(std::wstring(60, L'9')).size(), 49u);

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
    const UnitLists lists = builtLists();
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
