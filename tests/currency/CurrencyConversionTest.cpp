// SPDX-License-Identifier: GPL-3.0-or-later
#include "currency/CurrencyConversion.h"

#include "store/CurrencyStore.h"

#include <gtest/gtest.h>

#include <tuple>

TEST(CurrencyConversion, FieldTextsShowEightDecimals)
{
    // Field text, rate of its currency, rate of the other field's currency, the other field's text.
    using Case = std::tuple<std::wstring, double, double, std::wstring>;
    const Case cases[] = {
        {L"1", 1.0, 1.0, L"1.00000000"},
        // 100 US dollars (rate 1) in euros worth 1.25 dollars each: 100 / 1.25 = 80.
        {L"100", 1.0, 1.25, L"80.00000000"},
        // Text after the number is ignored: 2.5 x 0.5 / 2 = 0.625.
        {L"2.5 EUR", 0.5, 2.0, L"0.62500000"},
        {L" 1e3", 1.0, 3.0, L"333.33333333"},
        {L"-4", 3.0, 1.5, L"-8.00000000"},
        // No number converts as 0.
        {L"abc", 7.0, 3.0, L"0.00000000"},
        {L".", 7.0, 3.0, L"0.00000000"},
        // An empty field empties the others.
        {L"", 7.0, 3.0, L""},
        // (rate k / rate j) x amount in that order: 1e9 / 0.7 is rounded before the product, which gives
        // ...290 where 1e9 x 0.1 / 0.7 would give ...287 (worked out in double arithmetic).
        {L"0.1", 1e9, 0.7, L"142857142.85714290"},
    };
    for (const auto& [field, from, to, expected] : cases)
        EXPECT_EQ(ConvertedFieldText(field, from, to), expected) << field.c_str();
}

TEST(CurrencyConversion, AZeroRatePrintsWhatPrintfPrints)
{
    // Field text, rate of its currency, rate of the other, the other field's text ("nan" for a NaN, whose sign
    // printf shows as the processor left it).
    using Case = std::tuple<std::wstring, double, double, std::wstring>;
    const Case cases[] = {
        {L"5", 1.0, 0.0, L"inf"},
        {L"-5", 1.0, 0.0, L"-inf"},
        {L"5", 0.0, 2.0, L"0.00000000"},
        {L"5", 0.0, 0.0, L"nan"},
        // inf x 0
        {L"0", 1.0, 0.0, L"nan"},
    };
    for (const auto& [field, from, to, expected] : cases) {
        const std::wstring text = ConvertedFieldText(field, from, to);
        if (expected == L"nan")
            EXPECT_TRUE(text == L"nan" || text == L"-nan") << text.c_str();
        else
            EXPECT_EQ(text, expected);
    }
    const ConverterCurrency euro {L"EUR", L"EUR - Euro", 1.1};
    const ConverterCurrency nothing {L"", L" - ", 0.0};
    EXPECT_EQ(FirstRateLine(euro, nothing), L"1 EUR = inf ");
    EXPECT_EQ(SecondRateLine(euro, nothing), L"= inf ");
}

TEST(CurrencyConversion, RateLinesShareTheEqualsSign)
{
    const ConverterCurrency euro {L"EUR", L"EUR - Euro", 1.1};
    const ConverterCurrency dollar {L"USD", L"USD - US Dollar", 1.0};
    const ConverterCurrency pound {L"GBP", L"GBP - British Pound", 1.25};
    // 1.1 / 1 and 1.1 / 1.25 = 0.88, with printf's six decimals of "%f".
    EXPECT_EQ(FirstRateLine(euro, dollar), L"1 EUR = 1.100000 USD");
    EXPECT_EQ(SecondRateLine(euro, pound), L"= 0.880000 GBP");
    // The second line starts where the first line's equals sign stands.
    const std::wstring lead = FirstRateLineLead(euro);
    EXPECT_EQ(lead, L"1 EUR ");
    EXPECT_EQ(FirstRateLine(euro, dollar).substr(lead.size(), 1), L"=");
}

TEST(CurrencyConversion, LastUpdateTextFollowsTheYearRule)
{
    constexpr std::uint64_t Day = 864000000000ULL; // 100 ns ticks
    // 17 May 2024 at midnight: 19,860 days after 1 January 1970, which is 134,774 days after 1 January 1601.
    constexpr std::uint64_t May17th2024 = (19860ULL + 134774) * Day;
    // The 299 years from 1601 to 1900 hold 72 leap days (1700, 1800 are none).
    constexpr std::uint64_t January1st1900 = (299ULL * 365 + 72) * Day;
    using Case = std::tuple<std::uint64_t, int, std::wstring>;
    const Case cases[] = {
        {0, 2026, L"Last update: Never "},
        {May17th2024, 2026, L"Last update: 17/5/2024 "},
        {May17th2024, 2024, L"Last update: 17/5/2024 "},
        {May17th2024, 2023, L"Last update: Never "},
        {January1st1900 - Day, 2026, L"Last update: Never "},
        {January1st1900, 2026, L"Last update: 1/1/1900 "},
    };
    for (const auto& [stamp, year, expected] : cases)
        EXPECT_EQ(LastUpdateText(stamp, year), expected) << stamp;
}

TEST(CurrencyConversion, ChosenCurrenciesComeFromTheStore)
{
    auto objects = ObjectStore::openInMemory();
    CurrencyStore store(*objects);
    InitialCurrencyList list;
    list.fromFile = true;
    list.entries = {{L"USD", L"US Dollar", L"1"}, {L"EUR", L"Euro", L"1.25 per"}, {L"XXX", L"No rate", L""}};
    list.count = 3;
    store.SetInitialList(list);
    store.Load();
    // Name order: Euro, No rate, US Dollar; a position past the end reads as empty texts.
    using Case = std::tuple<std::uint32_t, std::wstring, std::wstring, double>;
    const Case cases[] = {
        {0, L"EUR", L"EUR - Euro", 1.25},
        {1, L"XXX", L"XXX - No rate", 0.0},
        {2, L"USD", L"USD - US Dollar", 1.0},
        {3, L"", L" - ", 0.0},
    };
    for (const auto& [position, code, label, rate] : cases) {
        const ConverterCurrency currency = ReadConverterCurrency(store, position);
        EXPECT_EQ(currency.code, code);
        EXPECT_EQ(currency.label, label);
        EXPECT_EQ(currency.rate, rate);
    }
}
