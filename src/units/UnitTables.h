// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <string_view>

// One unit: its name as shown and the text of its factor, the value of one unit in the category's base
// unit. Factors stay text; they are parsed with wcstod when a conversion needs them.
struct UnitRow
{
    std::wstring_view name;
    std::wstring_view factor;
};

// One category of units; its index in Categories() is also its place in the screen's category list.
struct UnitCategory
{
    wchar_t code; // stored in the catalogue: '0' to '6'
    int titleId; // string id of the title
    std::span<const UnitRow> rows; // in table order
};

// The unit tables built into the program, copied once into the catalogue database.
namespace UnitTables {

inline constexpr int CategoryCount = 7;
inline constexpr int TemperatureCategory = 4; // converted by formula; its factors are "-"

std::span<const UnitCategory> Categories();

} // namespace UnitTables
