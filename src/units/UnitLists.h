// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "units/UnitTables.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

class UnitCatalogue;

// The units of each category as the Measurements screen lists them: read from the catalogue by runs of
// equal category codes. Temperatures are not read: their list is the fixed one of the unit tables, in
// table order, with the factor text "-".
class UnitLists
{
public:
    static constexpr std::size_t MaxUnits = 150; // kept per category
    static constexpr std::uint32_t TemperatureRecords = 5; // skipped between the speeds and the volumes

    struct Unit
    {
        std::wstring name;
        std::wstring factor;
    };

    UnitLists() = default;
    static UnitLists Read(UnitCatalogue& catalogue);

    // The names shown in the from and to lists of category `category` (its index in the category list).
    std::vector<std::wstring> Names(int category) const;
    // The factor text of unit `index` of `category`; empty outside the list.
    std::wstring_view Factor(int category, int index) const;

private:
    std::array<std::vector<Unit>, UnitTables::CategoryCount> m_units;
};
