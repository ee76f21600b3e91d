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
    InitialCurrencyList list;
    list.fromFile = true;
    list.count = 3;
    list.entries = {{L"USD", L"US Dollar", L"1"}, {L"EUR", L"Euro", L"1.25"}};
    store.SetInitialList(list);
    store.Load();
    ASSERT_EQ(store.RecordCount(), 3);

    // Position, its list index, and the position that index maps back to.
    const std::tuple<std::uint32_t, int, std::uint32_t> cases[] = {
        {1, 0, 1},
        {2, 1, 2},
        // The empty currency is not listed: it maps to the entry after it.
        {0, 0, 1},
        // Past the end on both sides, one apart as the positions are.
        {3, 2, 3},
        {5, 4, 5},
    };
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
