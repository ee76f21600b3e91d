// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/WeatherFavourites.h"

#include "device/DeviceFile.h"
#include "device/MessageSink.h"
#include "store/FirstStartLoad.h"
#include "text/WideText.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::array<PropertyId, 4> SortIds = {WeatherFavourites::NameId, WeatherFavourites::LocationCodeId,
    WeatherFavourites::ForecastId, WeatherFavourites::UpdateKeyId};
constexpr int EveryOrderCaseSensitive = 1; // sort mode
constexpr DatabaseShape Shape {L"wdkWeather", 54321, SortIds, EveryOrderCaseSensitive};

// Reads "\cities.wet" line by line, each byte widened as Latin-1; past the end every line is empty.
class FavouritesFile
{
public:
    explicit FavouritesFile(std::string_view bytes)
        : m_bytes(bytes)
    { }

    bool atEnd() const { return m_next >= m_bytes.size(); }

    std::wstring line()
    {
        if (m_next >= m_bytes.size())
            return {};
        const std::size_t end = std::min(m_bytes.find('\n', m_next), m_bytes.size());
        std::wstring text = Latin1ToWide(m_bytes.substr(m_next, end - m_next));
        m_next = end + 1;
        return text;
    }

private:
    std::string_view m_bytes;
    std::size_t m_next = 0;
};

// "country file;city;location code": missing fields are empty; a location code holding a carriage
// return loses its last character.
std::vector<Property> favouriteFromLine(std::wstring_view line)
{
    const std::wstring_view countryFile = BeforeFirst(line, L';');
    const std::wstring_view rest = AfterFirst(line, L';');
    const std::wstring_view city = BeforeFirst(rest, L';');
    std::wstring_view code = AfterFirst(rest, L';');
    if (code.find(L'\r') != std::wstring_view::npos)
        code.remove_suffix(1);
    const std::wstring updateKey
        = std::wstring(WeatherFavourites::InitialUpdateDate) + L":" + std::wstring(countryFile);
    return Shape.record({city, code, {}, updateKey});
}

} // namespace

WeatherFavourites::WeatherFavourites(ObjectStore& store, const DevicePaths& paths, MessageSink& messages)
    : m_database(store)
    , m_store(store)
    , m_paths(paths)
    , m_messages(messages)
{ }

bool WeatherFavourites::openFavourites(int sortIndex)
{
    m_database.Close();
    if (sortIndex < 0)
        return m_database.Open(Shape.name);
    if (sortIndex >= static_cast<int>(SortIds.size()))
        return false;
    return m_database.OpenSorted(Shape.name, SortIds[static_cast<std::size_t>(sortIndex)]);
}

void WeatherFavourites::loadFavouritesOnce()
{
    loadFavouritesOnce([this] { return ReadDeviceFile(m_paths, DevicePaths::besideProgram(L"\\cities.wet")); });
}

void WeatherFavourites::loadFavouritesOnce(const DeviceFileSource& source)
{
    const auto fillFromSource = [&source](PropertyDatabase& database) {
        const auto bytes = source();
        if (bytes)
            fill(database, *bytes);
        return bytes.has_value();
    };
    if (FirstStartLoad::run(m_store, m_database, Shape, fillFromSource) == FirstStartLoad::Result::SourceMissing)
        m_messages.showMessage(L"Initial Weather Favorite Cities File not found!", L"Wanderkit");
}

void WeatherFavourites::fill(PropertyDatabase& database, std::string_view bytes)
{
    FavouritesFile file(bytes);
    const std::int32_t count = Wtol(file.line());
    // One record per line, as far as a database can count. Past the end of the file every line reads
    // empty: one empty favourite is written for them all, so that a count the file does not hold
    // ("65535" alone) cannot fill the store with empty favourites.
    const std::int64_t lines = std::min<std::int64_t>(count, PropertyDatabase::MaxRecords);
    for (std::int64_t i = 0; i < lines; ++i) {
        const bool pastEnd = file.atEnd();
        database.Add(favouriteFromLine(file.line()), PropertyDatabase::NoKey);
        if (pastEnd)
            return;
    }
}

std::wstring WeatherFavourites::getLastUpdate(std::uint32_t position)
{
    return m_database.ReadBeforeColonAt(position, UpdateKeyId);
}

std::wstring WeatherFavourites::getCountryFile(std::uint32_t position)
{
    return m_database.ReadAfterColonAt(position, UpdateKeyId);
}

std::int64_t WeatherFavourites::findByName(std::wstring_view name)
{
    return m_database.SeekEqual({NameId, std::wstring(name)});
}

std::int64_t WeatherFavourites::findByLocationCode(std::wstring_view code)
{
    return m_database.SeekEqual({LocationCodeId, std::wstring(code)});
}

bool WeatherFavourites::addFavourite(
    std::wstring_view name, std::wstring_view locationCode, std::wstring_view, std::wstring_view updateKey)
{
    return m_database.Add(Shape.record({name, locationCode, {}, updateKey}), PropertyDatabase::NoKey);
}

bool WeatherFavourites::updateFavourite(std::wstring_view name, std::wstring_view locationCode,
    std::wstring_view forecast, std::wstring_view updateKey, int byName)
{
    const std::int64_t found = byName == 1 ? findByName(name) : findByLocationCode(locationCode);
    return found != 0 && m_database.UpdateCurrent(Shape.record({name, locationCode, forecast, updateKey}));
}

bool WeatherFavourites::removeFavourite(std::uint32_t position)
{
    return m_database.DeleteAt(position);
}

std::uint16_t WeatherFavourites::count()
{
    return m_database.RecordCount();
}

void WeatherFavourites::close()
{
    m_database.Close();
}
