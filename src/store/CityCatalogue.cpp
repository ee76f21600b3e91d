// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/CityCatalogue.h"

#include "device/DeviceFile.h"
#include "device/MessageSink.h"
#include "store/DelimitedFieldReader.h"
#include "store/FirstStartLoad.h"
#include "text/StringTable.h"
#include "text/WideText.h"

#include <array>
#include <optional>

namespace {

constexpr std::array<PropertyId, 4> SortIds
    = {CityCatalogue::NameId, CityCatalogue::CoordinatesId, CityCatalogue::TimeZoneId, CityCatalogue::DaylightRuleId};
constexpr int CitiesFileMissing = 40018;
constexpr std::wstring_view EndMarker = L">";

// One data line: label ; city ; country ; coordinate ; coordinate ; time zone ; rule 1 to 4 ; rest of the
// rule. Nothing when the line carries the end marker ">" in the country, the second coordinate or rule field 4.
std::optional<std::array<Property, 4>> readCity(DelimitedFieldReader& reader)
{
    reader.read(';'); // the label: a record number or name, not kept
    std::array<std::wstring, 10> field; // fields 1 to 9
    for (std::size_t k = 1; k <= 9; ++k) {
        field[k] = reader.read(';');
        if ((k == 2 || k == 4) && field[k] == EndMarker)
            return std::nullopt;
    }
    if (field[9] == EndMarker)
        return std::nullopt;
    std::wstring rule;
    for (std::size_t k = 6; k <= 9; ++k)
        rule += field[k] + L":";
    rule += reader.read('\n');
    return std::array<Property, 4> {{
        {CityCatalogue::NameId, field[1] + L":" + field[2]},
        {CityCatalogue::CoordinatesId, field[3] + L":" + field[4]},
        {CityCatalogue::TimeZoneId, field[5]},
        {CityCatalogue::DaylightRuleId, rule},
    }};
}

} // namespace

CityCatalogue::CityCatalogue(ObjectStore& store, const DevicePaths& paths, MessageSink& messages)
    : m_database(store)
    , m_store(store)
    , m_paths(paths)
    , m_messages(messages)
{ }

void CityCatalogue::Load()
{
    Load([this] { return ReadDeviceFile(m_paths, DevicePaths::besideProgram(L"\\cities.lst")); });
}

void CityCatalogue::Load(const DeviceFileSource& source)
{
    const auto fillFromSource = [this, &source](PropertyDatabase&) {
        auto bytes = source();
        if (!bytes)
            return false;
        DelimitedFieldReader reader(std::move(*bytes));
        fill(reader);
        return true;
    };
    const DatabaseShape shape {DatabaseName, DatabaseType, SortIds, 1};
    if (FirstStartLoad::run(m_store, m_database, shape, fillFromSource) == FirstStartLoad::Result::SourceMissing)
        m_messages.showMessage(StringTable::Load(CitiesFileMissing), L"Wanderkit");
}

void CityCatalogue::fill(DelimitedFieldReader& reader)
{
    reader.read('\n'); // header line
    const std::int32_t count = Wtol(reader.read('\n'));
    for (std::int32_t i = 0; i < count; ++i) {
        // Past the end of the file every record reads empty and all but the first are duplicates.
        const bool pastEnd = reader.atEnd();
        const auto city = readCity(reader);
        if (!city)
            return;
        m_database.Add(*city, 0);
        if (pastEnd)
            return;
    }
}

CityRecord CityCatalogue::Record(std::uint32_t position)
{
    std::wstring name, coordinates;
    CityRecord city;
    for (const Property& property : m_database.ReadRecordAt(position)) {
        switch (property.id) {
        case NameId:
            name = property.text;
            break;
        case CoordinatesId:
            coordinates = property.text;
            break;
        case TimeZoneId:
            city.timeZone = property.text;
            break;
        case DaylightRuleId:
            city.daylightRule = property.text;
            break;
        }
    }
    city.name = BeforeFirst(name, L':');
    city.country = AfterFirst(name, L':');
    city.coordinate1 = BeforeFirst(coordinates, L':');
    city.coordinate2 = AfterFirst(coordinates, L':');
    return city;
}

std::uint16_t CityCatalogue::Count()
{
    return m_database.RecordCount();
}
