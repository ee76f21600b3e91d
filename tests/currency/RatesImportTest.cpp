// SPDX-License-Identifier: GPL-3.0-or-later
#include "currency/RatesImport.h"

#include "store/CurrencyStore.h"
#include "text/WideText.h"

#include <gtest/gtest.h>

#include <tuple>

using namespace std::chrono_literals;

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
    EXPECT_EQ(RatesImport::fileTimeOf(1601y / 1 / 1), 0u);
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
