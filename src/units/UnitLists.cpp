// SPDX-License-Identifier: GPL-3.0-or-later
#include "units/UnitLists.h"

#include "units/UnitCatalogue.h"

namespace {

// Reads the run of units of category `code` that starts at `position` (at most MaxUnits of them) and
// returns the position after the run.
std::uint32_t readRun(
    UnitCatalogue& catalogue, wchar_t code, std::uint32_t position, std::vector<UnitLists::Unit>& units)
{
    const std::wstring wanted(1, code);
    std::uint32_t count = 0;
    while (catalogue.Category(position + count) == wanted)
        ++count;
    for (std::uint32_t i = 0; i < count && units.size() < UnitLists::MaxUnits; ++i)
        units.push_back({catalogue.Name(position + i), catalogue.Factor(position + i)});
    return position + count;
}

} // namespace

UnitLists UnitLists::Read(UnitCatalogue& catalogue)
{
    UnitLists lists;
    std::uint32_t position = 0;
    for (int category = 0; category < UnitTables::CategoryCount; ++category) {
        const UnitCategory& table = UnitTables::Categories()[static_cast<std::size_t>(category)];
        auto& units = lists.m_units[static_cast<std::size_t>(category)];
        if (category == UnitTables::TemperatureCategory) {
            // Temperatures convert by formula: their list is fixed, and their records are stepped over by
            // count, whatever their codes.
            for (const UnitRow& row : table.rows)
                units.push_back({std::wstring(row.name), std::wstring(row.factor)});
            position += TemperatureRecords;
            continue;
        }
        position = readRun(catalogue, table.code, position, units);
    }
    return lists;
}

std::vector<std::wstring> UnitLists::Names(int category) const
{
    std::vector<std::wstring> names;
    if (category >= 0 && category < UnitTables::CategoryCount) {
        for (const Unit& unit : m_units[static_cast<std::size_t>(category)])
            names.push_back(unit.name);
    }
    return names;
}

std::wstring_view UnitLists::Factor(int category, int index) const
{
    if (category < 0 || category >= UnitTables::CategoryCount || index < 0)
        return {};
    const auto& units = m_units[static_cast<std::size_t>(category)];
    return static_cast<std::size_t>(index) < units.size() ? units[static_cast<std::size_t>(index)].factor
                                                          : std::wstring_view {};
}
