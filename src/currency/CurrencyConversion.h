// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

class CurrencyStore;

// The Currency Converter's arithmetic and texts, shared by its screen and the `currency` and `rates`
// commands. Rates are the store's: the value of one unit in the common base currency.

// One chosen currency as the converter keeps it.
struct ConverterCurrency
{
    std::wstring code;
    std::wstring label; // code + " - " + name
    double rate = 0; // the rate text through wcstod: 0 for a missing record or an empty text
};

// The currency at `position` of the store (empty texts and a rate of 0 when there is none).
[[nodiscard]] ConverterCurrency ReadConverterCurrency(CurrencyStore& store, std::uint32_t position);

// What a field of rate `toRate` shows when a field of rate `fromRate` holds `fieldText`: empty for an empty
// text, else "%.8f" of (fromRate / toRate) x amount, the amount read with wcstod (no number reads as 0).
// A zero rate gives what printf prints for inf or nan.
[[nodiscard]] std::wstring ConvertedFieldText(const std::wstring& fieldText, double fromRate, double toRate);

// Rate line 1: "1 %s = %f %s" with the first code, rate 1 / rate 2 and the second code.
[[nodiscard]] std::wstring FirstRateLine(const ConverterCurrency& first, const ConverterCurrency& second);
// The part of rate line 1 before its equals sign, "1 %s ": the second line is drawn after its width.
[[nodiscard]] std::wstring FirstRateLineLead(const ConverterCurrency& first);
// Rate line 2: "= %f %s" with rate 1 / rate 3 and the third code.
[[nodiscard]] std::wstring SecondRateLine(const ConverterCurrency& first, const ConverterCurrency& third);

// "Last update: d/m/y " for a stamp whose year lies from 1900 to `currentYear`, else "Last update: Never ".
[[nodiscard]] std::wstring LastUpdateText(std::uint64_t fileTime, int currentYear);
