// SPDX-License-Identifier: GPL-3.0-or-later
#include "units/UnitCatalogue.h"

#include "store/FirstStartLoad.h"
#include "units/UnitTables.h"

#include <array>

namespace {

constexpr std::array<PropertyId, 3> SortIds
    = {UnitCatalogue::CategoryId, UnitCatalogue::NameId, UnitCatalogue::FactorId};
constexpr int EveryOrderCaseSensitive = 0; // sort mode
constexpr DatabaseShape Shape {L"wdkConverters", 56789, SortIds, EveryOrderCaseSensitive};

} // namespace

UnitCatalogue::UnitCatalogue(ObjectStore& store)
    : m_store(store)
    , m_database(store)
{ }

void UnitCatalogue::Build()
{
    FirstStartLoad::run(m_store, m_database, Shape, [this](PropertyDatabase&) {
        fill();
        return true;
    });
    m_database.OpenSorted(Shape.name, CategoryId);
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

bool UnitCatalogue::AddUnit(std::wstring_view category, std::wstring_view name, std::wstring_view factor)
{
    return m_database.Add(Shape.record({category, name, factor}), PropertyDatabase::NoKey);
}

bool UnitCatalogue::UpdateUnitAt(
    std::uint32_t position, std::wstring_view category, std::wstring_view name, std::wstring_view factor)
{
    return m_database.UpdateAt(position, Shape.record({category, name, factor}));
}

bool UnitCatalogue::DeleteUnitAt(std::uint32_t position)
{
    return m_database.DeleteAt(position);
}
