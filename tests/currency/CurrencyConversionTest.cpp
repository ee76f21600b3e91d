// SPDX-License-Identifier: GPL-3.0-or-later
#include "currency/CurrencyConversion.h"

#include "currency/CurrencyList.h"
#include "currency/RatesImport.h"
#include "store/CurrencyStore.h"
#include "text/WideText.h"

#include <gtest/gtest.h>

#include <tuple>

using namespace std::chrono_literals;

TEST(CurrencyConversion, FieldTextsShowEightDecimalsAsPrintfPrints)
{
    // Field text, rate of its currency, rate of the other field's currency, the other field's text ("nan" for
    // a NaN, whose sign printf shows as the processor left it). 100 US dollars (rate 1) in euros worth 1.25
    // dollars: 100 / 1.25; text after the number is ignored, no number converts as 0, and an empty field
    // empties the others. (rate k / rate j) x amount in that order: 1e9 / 0.7 is rounded before the product,
    // which gives ...290 where 1e9 x 0.1 / 0.7 would give ...287 (worked out in double arithmetic). A zero
    // rate gives an infinity, and inf x 0 is a NaN.
    const std::tuple<std::wstring, double, double, std::wstring> cases[]
        = {{L"100", 1.0, 1.25, L"80.00000000"}, {L"2.5 EUR", 0.5, 2.0, L"0.62500000"},
            {L" 1e3", 1.0, 3.0, L"333.33333333"}, {L"abc", 7.0, 3.0, L"0.00000000"}, {L"", 7.0, 3.0, L""},
            {L"0.1", 1e9, 0.7, L"142857142.85714290"}, {L"-5", 1.0, 0.0, L"-inf"}, {L"0", 1.0, 0.0, L"nan"}};
    for (const auto& [field, from, to, expected] : cases) {
        const std::wstring text = ConvertedFieldText(field, from, to);
        EXPECT_TRUE(text == expected || (expected == L"nan" && text == L"-nan")) << text.c_str();
    }
}

TEST(CurrencyConversion, RateLinesShareTheEqualsSign)
{
    const ConverterCurrency euro {L"EUR", L"EUR - Euro", 1.1}, dollar {L"USD", L"USD - US Dollar", 1.0},
        pound {L"GBP", L"GBP - British Pound", 1.25};
    // 1.1 / 1 and 1.1 / 1.25 = 0.88, with printf's six decimals of "%f".
    EXPECT_EQ(FirstRateLine(euro, dollar), L"1 EUR = 1.100000 USD");
    EXPECT_EQ(SecondRateLine(euro, pound), L"= 0.880000 GBP");
    // The second line starts where the first line's equals sign stands.
    EXPECT_EQ(FirstRateLineLead(euro), L"1 EUR ");
    const ConverterCurrency nothing {L"", L" - ", 0.0};
    EXPECT_EQ(FirstRateLine(euro, nothing), L"1 EUR = inf ");
    EXPECT_EQ(SecondRateLine(euro, nothing), L"= inf ");

    // The last update's text; the year rule is checked with the store's LastUpdateDate.
    // 17 May 2024 at midnight, in 100 ns ticks: 19,860 days after 1 January 1970, which is 134,774 days
    // after 1 January 1601.
    constexpr std::uint64_t May17th2024 = (19860ULL + 134774) * 864000000000ULL;
    EXPECT_EQ(LastUpdateText(0, 2026), L"Last update: Never ");
    EXPECT_EQ(LastUpdateText(May17th2024, 2024), L"Last update: 17/5/2024 ");
}

TEST(CurrencyConversion, ChosenCurrenciesAndTheSelectListComeFromTheStore)
{
    auto objects = ObjectStore::openInMemory();
    CurrencyStore store(*objects);
    // A file promising three currencies but holding two: the third is stored empty, with no rate, and its
    // name being empty it comes first. Positions: 0 the empty one, 1 Euro, 2 US Dollar.
    store.SetInitialList(ParseInitialCurrencies("3\nUSD_US Dollar_1#EUR_Euro_1.25 per#"));
    store.Load();
    ASSERT_EQ(store.RecordCount(), 3);
    const std::tuple<std::uint32_t, std::wstring, std::wstring, double> cases[]
        = {{0, L"", L" - ", 0.0}, {1, L"EUR", L"EUR - Euro", 1.25}, {2, L"USD", L"USD - US Dollar", 1.0}};
    for (const auto& [position, code, label, rate] : cases) {
        const ConverterCurrency currency = ReadConverterCurrency(store, position);
        EXPECT_EQ(std::tie(currency.code, currency.label, currency.rate), std::tie(code, label, rate));
    }

    // The Select list leaves out the empty one: Euro, US Dollar. Position, its list index, and the position
    // that index maps back to: the empty currency maps to the entry after it, and past the end index and
    // position stay one apart as the positions are.
    const std::tuple<std::uint32_t, int, std::uint32_t> indices[] = {{1, 0, 1}, {2, 1, 2}, {0, 0, 1}, {5, 4, 5}};
    for (const auto& [position, index, back] : indices) {
        EXPECT_EQ(CurrencyListIndex(store, position), index) << position;
        EXPECT_EQ(CurrencyPosition(store, index), back) << index;
    }
    // Nothing selected reads as no currency.
    EXPECT_EQ(store.Code(CurrencyPosition(store, -1)), L"");
    EXPECT_EQ(std::tuple(IsListedCurrency(L"", L"Name"), IsListedCurrency(L"ABC", L""), IsListedCurrency(L"", L"")),
        std::tuple(true, true, false));
}

TEST(RatesImport, DollarRatesAreTheQuotientOfThePublishedRates)
{
    // Dollars per euro, units per euro, dollars per unit; the quotients are exact in binary.
    const std::tuple<double, double, std::wstring> cases[]
        = {{1.0859, 1.0859, L"1"}, {1.0859, 1, L"1.0859"}, {1.25, 160, L"0.0078125"}, {1.25, 0.8, L"1.5625"}};
    for (const auto& [dollars, units, expected] : cases)
        EXPECT_EQ(RatesImport::dollarRateText(dollars, units), expected);

    // Any quotient: plain decimal text that wcstod reads back as exactly the quotient.
    const double published[] = {1.0859, 169.03, 0.8542, 17556.48, 4.9764, 0.00123, 99999.9, 1.0, 380.75};
    for (const double dollars : published) {
        for (const double units : published) {
            const std::wstring text = RatesImport::dollarRateText(dollars, units);
            EXPECT_EQ(text.find_first_not_of(L"0123456789."), std::wstring::npos) << text.c_str();
            EXPECT_EQ(Wcstod(text), dollars / units) << text.c_str();
        }
    }
}

TEST(RatesImport, StampsAndAFailedWrite)
{
    EXPECT_EQ(RatesImport::fileTimeOf(1970y / 1 / 1), 116444736000000000ULL); // the Unix epoch as a FILETIME
    // Every day the ECB may date reads back as itself, at midnight.
    for (std::chrono::sys_days day = std::chrono::sys_days {1999y / 1 / 1};
         day <= std::chrono::sys_days {2030y / 12 / 31}; day += std::chrono::days {1}) {
        const std::chrono::year_month_day date {day};
        const auto read = CurrencyStore::LastUpdateDate(RatesImport::fileTimeOf(date), 2030);
        ASSERT_TRUE(read);
        ASSERT_EQ(read->year, static_cast<int>(date.year()));
        ASSERT_EQ(read->month, static_cast<unsigned>(date.month()));
        ASSERT_EQ(read->day, static_cast<unsigned>(date.day()));
        ASSERT_EQ(read->hour + read->minute + read->second + read->milliseconds, 0);
    }

    // A failed write leaves the store as it was: the dollar's update, written first, is rolled back.
    auto objects = ObjectStore::openInMemory();
    CurrencyStore store(*objects);
    store.SetInitialList(ParseInitialCurrencies("1\nUSD_US Dollar_1#"));
    store.Load();
    RatesImport::Plan plan;
    plan.updates = {{L"USD", L"US Dollar", L"2"}, {L"XXX", L"Nowhere Dollar", L"3"}};
    plan.stamp = RatesImport::fileTimeOf(2024y / 5 / 17);
    EXPECT_FALSE(RatesImport::apply(*objects, store, plan));
    EXPECT_EQ(store.RateText(0), L"1");
    EXPECT_EQ(store.LastUpdate(), 0u);
}
