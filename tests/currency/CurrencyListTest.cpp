// SPDX-License-Identifier: GPL-3.0-or-later
#include "currency/CurrencyList.h"

#include "store/CurrencyStore.h"

#include <gtest/gtest.h>

#include <tuple>

TEST(CurrencyList, IndicesSkipCurrenciesWithoutCodeAndName)
{
    // A file promising three currencies but holding two: the third is stored empty and, its name being
    // empty, comes first. Positions: 0 the empty one, 1 Euro, 2 US Dollar; the list: Euro, US Dollar.
    auto objects = ObjectStore::openInMemory();
    CurrencyStore store(*objects);
    store.SetInitialList(ParseInitialCurrencies("3\nUSD_US Dollar_1#EUR_Euro_1.25#"));
    store.Load();
    ASSERT_EQ(store.RecordCount(), 3);

    // Position, its list index, and the position that index maps back to. The empty currency is not listed:
    // it maps to the entry after it. Past the end, index and position stay one apart as the positions are.
    const std::tuple<std::uint32_t, int, std::uint32_t> cases[] = {{1, 0, 1}, {2, 1, 2}, {0, 0, 1}, {5, 4, 5}};
    for (const auto& [position, index, back] : cases) {
        EXPECT_EQ(CurrencyListIndex(store, position), index) << position;
        EXPECT_EQ(CurrencyPosition(store, index), back) << index;
    }
    // Nothing selected reads as no currency.
    EXPECT_EQ(store.Code(CurrencyPosition(store, -1)), L"");
    EXPECT_TRUE(IsListedCurrency(L"", L"Name"));
    EXPECT_TRUE(IsListedCurrency(L"ABC", L""));
    EXPECT_FALSE(IsListedCurrency(L"", L""));
}
