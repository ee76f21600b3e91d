// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "device/DeviceFile.h"
#include "device/DevicePaths.h"
#include "device/MessageSink.h"
#include "store/PropertyDatabase.h"

#include <cstdint>
#include <string>
#include <string_view>

// The weather favourites "wdkWeather" (database type 54321): one record per favourite city with its
// location code, its stored forecast and its update key ("date:country list file"). Filled once from
// "\cities.wet".
class WeatherFavourites
{
public:
    static constexpr PropertyId NameId = 201; // favCityName
    static constexpr PropertyId LocationCodeId = 202; // favLocationCode
    static constexpr PropertyId ForecastId = 203; // favForecastText
    static constexpr PropertyId UpdateKeyId = 204; // favUpdateKey
    static constexpr std::wstring_view InitialUpdateDate = L"01/01/2000";

    WeatherFavourites(ObjectStore& store, const DevicePaths& paths, MessageSink& messages);

    // Opens "wdkWeather": -1 in its default order, 0 to 3 sorted on property 201 to 204.
    bool openFavourites(int sortIndex);
    // The first-start load from "\cities.wet" (all or nothing); leaves the store open in its default order.
    void loadFavouritesOnce();
    // The same load from the bytes `source` gives.
    void loadFavouritesOnce(const DeviceFileSource& source);

    std::wstring getName(std::uint32_t position) { return m_database.ReadAt(position, NameId); }
    std::wstring getLocationCode(std::uint32_t position) { return m_database.ReadAt(position, LocationCodeId); }
    std::wstring getForecastText(std::uint32_t position) { return m_database.ReadAt(position, ForecastId); }
    std::wstring getLastUpdate(std::uint32_t position); // the update key before its first ":"
    std::wstring getCountryFile(std::uint32_t position); // the update key after its first ":"

    // Non-zero when found; the store is then positioned on that favourite.
    std::int64_t findByName(std::wstring_view name);
    std::int64_t findByLocationCode(std::wstring_view code);

    // Writes a new favourite, with an empty forecast whatever `forecast` holds, and without looking for
    // an existing one of the same name.
    bool addFavourite(std::wstring_view name, std::wstring_view locationCode, std::wstring_view forecast,
        std::wstring_view updateKey);
    // Finds the favourite by name (byName == 1) or else by location code, and rewrites all four properties.
    bool updateFavourite(std::wstring_view name, std::wstring_view locationCode, std::wstring_view forecast,
        std::wstring_view updateKey, int byName);
    bool removeFavourite(std::uint32_t position);
    std::uint16_t count();
    void close();

private:
    static void fill(PropertyDatabase& database, std::string_view bytes);

    PropertyDatabase m_database;
    ObjectStore& m_store;
    const DevicePaths& m_paths;
    MessageSink& m_messages;
};
