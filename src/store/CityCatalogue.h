// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "device/DeviceFile.h"
#include "device/DevicePaths.h"
#include "device/MessageSink.h"
#include "store/PropertyDatabase.h"
#include "time/CityRecord.h"

#include <cstdint>
#include <string>

class DelimitedFieldReader;

// The city catalogue "wdkCities", filled once from "\cities.lst". A city is referred to by its position
// in ascending order of "city:country".
class CityCatalogue
{
public:
    static constexpr std::wstring_view DatabaseName = L"wdkCities";
    static constexpr std::uint32_t DatabaseType = 12345;
    static constexpr PropertyId NameId = 101; // "city:country"
    static constexpr PropertyId CoordinatesId = 103; // "coordinate:coordinate"
    static constexpr PropertyId TimeZoneId = 108;
    static constexpr PropertyId DaylightRuleId = 104;

    CityCatalogue(ObjectStore& store, const DevicePaths& paths, MessageSink& messages);

    // Opens the catalogue, filling it from "\cities.lst" when it holds no city yet (all or nothing).
    void Load();
    // The same, filling it from the bytes `source` gives.
    void Load(const DeviceFileSource& source);

    std::wstring CityName(std::uint32_t position) { return m_database.ReadBeforeColonAt(position, NameId); }
    std::wstring Country(std::uint32_t position) { return m_database.ReadAfterColonAt(position, NameId); }
    std::wstring Coordinate1(std::uint32_t position) { return m_database.ReadBeforeColonAt(position, CoordinatesId); }
    std::wstring Coordinate2(std::uint32_t position) { return m_database.ReadAfterColonAt(position, CoordinatesId); }
    std::wstring TimeZoneText(std::uint32_t position) { return m_database.ReadAt(position, TimeZoneId); }
    std::wstring DaylightRuleText(std::uint32_t position) { return m_database.ReadAt(position, DaylightRuleId); }
    CityRecord Record(std::uint32_t position);
    std::uint16_t Count();

private:
    void fill(DelimitedFieldReader& reader);

    PropertyDatabase m_database;
    ObjectStore& m_store;
    const DevicePaths& m_paths;
    MessageSink& m_messages;
};
