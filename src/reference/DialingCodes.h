// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

// The dialing-code tables: international calling codes by country and US area codes by city, shown
// as they stand (several texts carry a trailing blank, which is kept).
namespace DialingCodes {

struct Country
{
    std::wstring_view country;
    std::wstring_view code; // without the "+" the list puts in front
    std::wstring_view gmt; // standard offset in hours ("+1", "-11", "+5.5", "0"), "+x" where unknown
};

struct AreaCode
{
    std::wstring_view state; // full name with its abbreviation in brackets, "Ohio(OH)"
    std::wstring_view city;
    std::wstring_view code; // with its leading "+", "+330"
};

// The international table, 244 rows in list order (alphabetical by country, as the list was written).
std::span<const Country> International();
// The US area codes, 259 rows in list order; a city with several codes has a row per code.
std::span<const AreaCode> UsAreaCodes();

// The code as the list shows it: "+" followed by the stored code.
std::wstring ShownCode(const Country& row);

// Rows whose country contains `text`, ignoring case, in table order; every row for an empty text.
std::vector<Country> FindCountries(std::wstring_view text);
// Rows whose city or state contains `text`, ignoring case, in table order; every row for an empty text.
std::vector<AreaCode> FindAreaCodes(std::wstring_view text);

} // namespace DialingCodes
