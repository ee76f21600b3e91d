// SPDX-License-Identifier: GPL-3.0-or-later
// City records as the object store may hold them after another program or an older version wrote it:
// up to four properties a record, each an identifier and any bytes as its text. The catalogue reads
// every record back, sorts it in each order, finds it by name, and the city panel is computed from it.
#include "FuzzDevice.h"
#include "FuzzInput.h"
#include "store/CityCatalogue.h"
#include "time/CityInformation.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::array<PropertyId, 4> CityProperties
    = {CityCatalogue::NameId, CityCatalogue::CoordinatesId, CityCatalogue::TimeZoneId, CityCatalogue::DaylightRuleId};

// Writes one record of up to four properties taken from `input`, as raw rows.
void writeRecord(SqliteConnection& connection, FuzzInput& input)
{
    SqliteQuery insert = connection.query(
        "INSERT INTO records(db, prop0, value0, lookup0, prop1, value1, lookup1, prop2, value2, lookup2, "
        "prop3, value3, lookup3) VALUES((SELECT id FROM databases WHERE name = 'wdkCities'), "
        "?1, ?2, ?2, ?3, ?4, ?4, ?5, ?6, ?6, ?7, ?8, ?8)");
    for (int slot = 0; slot < 4; ++slot) {
        const std::uint8_t choice = input.byte();
        if (choice >= 0xF0)
            continue; // an empty slot: identifier and text stay null
        const PropertyId id = choice < 0xE0 ? CityProperties[choice % 4] : static_cast<PropertyId>(input.word());
        insert.bind(1 + 2 * slot, std::int64_t {id}).bind(2 + 2 * slot, input.piece());
    }
    insert.run();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzDevice& device = FuzzDevice::emptied();
    CityCatalogue catalogue(*device.store, device.paths, device.messages);
    catalogue.Load([] { return std::string("header\n0\n"); }); // creates the database, empty
    FuzzInput input(data, size);
    for (int i = 0; i < 16 && !input.empty(); ++i)
        writeRecord(device.store->connection(), input);

    catalogue.Load();
    const std::uint32_t count = std::min<std::uint32_t>(catalogue.Count(), 16);
    for (std::uint32_t i = 0; i < count; ++i) {
        const CityRecord city = catalogue.Record(i);
        CityInformationLines(city, {0, 0}, FuzzDevice::Now);
        catalogue.CityName(i);
        catalogue.Coordinate2(i);
    }
    PropertyDatabase database(*device.store);
    for (const PropertyId order : CityProperties) {
        if (database.OpenSorted(CityCatalogue::DatabaseName, order) && count > 0)
            database.SeekEqual({order, database.ReadAt(count - 1, order)});
    }
    return 0;
}
