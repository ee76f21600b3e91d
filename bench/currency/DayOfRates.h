// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "EcbFile.h"

#include <iterator>
#include <string>
#include <utility>
#include <vector>

// A day of ECB rates for the import benchmarks: the ECB's 30 currencies and ten more that the shipped
// list holds, dated 17 May 2024.
inline std::string DayOfRatesFile()
{
    static const char* const Codes[] = {"USD", "JPY", "BGN", "CZK", "DKK", "GBP", "HUF", "PLN", "RON", "SEK", "CHF",
        "ISK", "NOK", "TRY", "AUD", "BRL", "CAD", "CNY", "HKD", "IDR", "ILS", "INR", "KRW", "MXN", "MYR", "NZD", "PHP",
        "SGD", "THB", "ZAR", "AED", "ARS", "CLP", "COP", "EGP", "KES", "MAD", "NGN", "PKR", "SAR"};
    std::vector<std::pair<std::string, std::string>> rates;
    for (std::size_t i = 0; i < std::size(Codes); ++i)
        rates.push_back({Codes[i], std::to_string(1.0859 + static_cast<double>(i))});
    return EcbFile("2024-05-17", rates);
}
