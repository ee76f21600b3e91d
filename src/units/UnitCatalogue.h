// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "store/PropertyDatabase.h"

#include <cstdint>
#include <string>
#include <string_view>

// The unit catalogue database "wdkConverters" (database type 56789): one record per unit (category code,
// name, factor text), traversed category by category. Built once from the program's unit tables; a unit
// is addressed by its position in that traversal.
class UnitCatalogue
{
public:
    static constexpr PropertyId CategoryId = 301;
    static constexpr PropertyId NameId = 302;
    static constexpr PropertyId FactorId = 303;

    explicit UnitCatalogue(ObjectStore& store);

    // Opens the catalogue sorted by category; when it is missing or empty, creates it and copies the unit
    // tables into it, category by category, each starting with its table's last row.
    void Build();

    // The category code, name or factor text of the unit at `position`; empty when there is none.
    std::wstring Category(std::uint32_t position) { return m_database.ReadAt(position, CategoryId); }
    std::wstring Name(std::uint32_t position) { return m_database.ReadAt(position, NameId); }
    std::wstring Factor(std::uint32_t position) { return m_database.ReadAt(position, FactorId); }

    // Moves the cursor to `position`; false when there is no such unit.
    bool SeekTo(std::uint32_t position) { return m_database.SeekTo(position) != 0; }
    std::uint16_t RecordCount() { return m_database.RecordCount(); }

    // Writes a new unit; names may repeat across categories ("Yard"), so none is refused.
    bool AddUnit(std::wstring_view category, std::wstring_view name, std::wstring_view factor);
    // Overwrites the three properties of the unit at `position`.
    bool UpdateUnitAt(
        std::uint32_t position, std::wstring_view category, std::wstring_view name, std::wstring_view factor);
    bool DeleteUnitAt(std::uint32_t position);

private:
    void fill();

    ObjectStore& m_store;
    PropertyDatabase m_database;
};
