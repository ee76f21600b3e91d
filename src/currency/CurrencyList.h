// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string_view>

class CurrencyStore;

// The Select dialog's currency list leaves out currencies whose code and name are both empty, so its
// indices differ from store positions after such an entry. These map one onto the other.

// True when the currency appears in the list ("code - name" is more than " - ").
[[nodiscard]] bool IsListedCurrency(std::wstring_view code, std::wstring_view name);
// The list index of store position `position`; a position past the end maps past the list's end.
[[nodiscard]] int CurrencyListIndex(CurrencyStore& store, std::uint32_t position);
// The store position of list index `index`; an index outside the list (-1: nothing selected) maps to a
// position that reads as no currency.
[[nodiscard]] std::uint32_t CurrencyPosition(CurrencyStore& store, int index);
