// SPDX-License-Identifier: GPL-3.0-or-later
#include "units/UnitCatalogue.h"

#include "store/FirstStartLoad.h"
#include "units/UnitTables.h"

#include <array>

namespace {

constexpr std::array<PropertyId, 3> SortIds
    = {UnitCatalogue::CategoryId, UnitCatalogue::NameId, UnitCatalogue::FactorId};
constexpr int EveryOrderCaseSensitive = 0; // sort mode

std::array<Property, 3> unitProperties(std::wstring_view category, std::wstring_view name, std::wstring_view factor)
{
    return {{{UnitCatalogue::CategoryId, std::wstring(category)}, {UnitCatalogue::NameId, std::wstring(name)},
        {UnitCatalogue::FactorId, std::wstring(factor)}}};
}

} // namespace

UnitCatalogue::UnitCatalogue(ObjectStore& store)
    : m_store(store)
    , m_database(store)
{ }

void UnitCatalogue::Build()
{
    const DatabaseShape shape {DatabaseName, DatabaseType, SortIds, EveryOrderCaseSensitive};
    FirstStartLoad::run(m_store, m_database, shape, [this](PropertyDatabase&) {
        fill();
        return true;
    });
    m_database.OpenSorted(DatabaseName, CategoryId);
}

// Each category is written starting with its table's last row, then the others in table order. Units of
// one category are traversed in order of addition, so the screen's lists start with that last row.
void UnitCatalogue::fill()
{
    for (const UnitCategory& category : UnitTables::Categories()) {
        const std::wstring code(1, category.code);
        const auto rows = category.rows;
        AddUnit(code, rows.back().name, rows.back().factor);
        for (const UnitRow& row : rows.first(rows.size() - 1))
            AddUnit(code, row.name, row.factor);
    }
}

std::wstring UnitCatalogue::Category(std::uint32_t position)
{
    return m_database.ReadAt(position, CategoryId);
}

std::wstring UnitCatalogue::Name(std::uint32_t position)
{
    return m_database.ReadAt(position, NameId);
}

std::wstring UnitCatalogue::Factor(std::uint32_t position)
{
    return m_database.ReadAt(position, FactorId);
}

bool UnitCatalogue::SeekTo(std::uint32_t position)
{
    return m_database.SeekTo(position) != 0;
}

std::uint16_t UnitCatalogue::RecordCount()
{
    return m_database.RecordCount();
}

bool UnitCatalogue::AddUnit(std::wstring_view category, std::wstring_view name, std::wstring_view factor)
{
    return m_database.Add(unitProperties(category, name, factor), PropertyDatabase::NoKey);
}

bool UnitCatalogue::UpdateUnitAt(
    std::uint32_t position, std::wstring_view category, std::wstring_view name, std::wstring_view factor)
{
    return m_database.UpdateAt(position, unitProperties(category, name, factor));
}

bool UnitCatalogue::DeleteUnitAt(std::uint32_t position)
{
    return m_database.DeleteAt(position);
}
