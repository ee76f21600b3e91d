// SPDX-License-Identifier: GPL-3.0-or-later
#include "currency/CurrencyList.h"

#include "store/CurrencyStore.h"

bool IsListedCurrency(std::wstring_view code, std::wstring_view name)
{
    return !code.empty() || !name.empty();
}

int CurrencyListIndex(CurrencyStore& store, std::uint32_t position)
{
    const std::uint32_t count = store.RecordCount();
    std::uint32_t left = 0;
    for (std::uint32_t i = 0; i < count && i < position; ++i) {
        if (!IsListedCurrency(store.Code(i), store.Name(i)))
            ++left;
    }
    return static_cast<int>(position - left);
}

std::uint32_t CurrencyPosition(CurrencyStore& store, int index)
{
    const std::uint32_t count = store.RecordCount();
    int listed = -1;
    for (std::uint32_t i = 0; i < count && index >= 0; ++i) {
        if (IsListedCurrency(store.Code(i), store.Name(i)) && ++listed == index)
            return i;
    }
    return index < 0 ? static_cast<std::uint32_t>(index) : count + static_cast<std::uint32_t>(index - listed - 1);
}
