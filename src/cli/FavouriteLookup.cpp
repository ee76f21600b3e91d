// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/FavouriteLookup.h"

#include "store/CityCatalogue.h"
#include "store/CountryCityList.h"
#include "store/WeatherFavourites.h"
#include "text/WideText.h"
#include "weather/WeatherCountries.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <map>
#include <vector>

namespace {

constexpr double Tolerance = 0.25; // degrees; forecast services answer for the nearest point of their grid

struct Place
{
    double latitude;
    double longitude;
};

// Every catalogue city's place by its name (a name may stand for several cities).
std::multimap<std::wstring, Place> cataloguePlaces(CityCatalogue& cities)
{
    std::multimap<std::wstring, Place> places;
    const std::uint16_t count = cities.Count();
    for (std::uint32_t i = 0; i < count; ++i) {
        const CityRecord city = cities.Record(i);
        // Stored as "longitude:latitude".
        places.emplace(city.name, Place {Wcstod(city.coordinate2), Wcstod(city.coordinate1)});
    }
    return places;
}

// Calls `visit(country, list, city)` for every city of every weather country list, in country and file order.
template<typename Visit>
void forEachWeatherCity(const DevicePaths& paths, Visit visit)
{
    for (const std::wstring& country : ListWeatherCountries(paths)) {
        const CountryCityList list = CountryCityList::read(paths, country);
        for (const std::wstring& city : list.cities())
            visit(country, list, city);
    }
}

} // namespace

std::optional<std::uint32_t> FindFavourite(WeatherFavourites& favourites, const std::string& word)
{
    const std::uint16_t count = favourites.count();
    std::uint32_t position = 0;
    const auto [end, ec] = std::from_chars(word.data(), word.data() + word.size(), position);
    if (!word.empty() && ec == std::errc() && end == word.data() + word.size())
        return position < count ? std::optional(position) : std::nullopt;
    const std::wstring wanted = FoldLatin1(Utf8ToWide(word));
    for (std::uint32_t i = 0; i < count; ++i)
        if (FoldLatin1(favourites.getName(i)) == wanted)
            return i;
    return std::nullopt;
}

std::optional<std::uint32_t> FavouriteNear(
    WeatherFavourites& favourites, CityCatalogue& cities, double latitude, double longitude)
{
    const auto places = cataloguePlaces(cities);
    std::optional<std::uint32_t> nearest;
    double nearestDistance = Tolerance;
    const std::uint16_t count = favourites.count();
    for (std::uint32_t i = 0; i < count; ++i) {
        const auto [first, last] = places.equal_range(favourites.getName(i));
        for (auto it = first; it != last; ++it) {
            const double distance
                = std::max(std::abs(it->second.latitude - latitude), std::abs(it->second.longitude - longitude));
            if (distance <= nearestDistance && (!nearest || distance < nearestDistance)) {
                nearest = i;
                nearestDistance = distance;
            }
        }
    }
    return nearest;
}

std::vector<WeatherCity> FindWeatherCities(const DevicePaths& paths, const std::string& word)
{
    const std::wstring wanted = FoldLatin1(Utf8ToWide(word));
    const bool withCountry = wanted.find(L':') != std::wstring::npos;
    std::vector<WeatherCity> found;
    forEachWeatherCity(paths, [&](const std::wstring& country, const CountryCityList& list, const std::wstring& city) {
        if (FoldLatin1(withCountry ? city + L":" + country : city) != wanted)
            return;
        const bool seen = std::any_of(found.begin(), found.end(),
            [&](const WeatherCity& other) { return other.name == city && other.country == country; });
        const auto code = list.codeOf(city);
        if (!seen && code)
            found.push_back({city, country, *code});
    });
    return found;
}

std::vector<std::string> WeatherCitiesContaining(const DevicePaths& paths, const std::string& word, std::size_t limit)
{
    const std::wstring part = FoldLatin1(BeforeFirst(Utf8ToWide(word), L':'));
    std::vector<std::string> names;
    forEachWeatherCity(paths, [&](const std::wstring& country, const CountryCityList&, const std::wstring& city) {
        if (names.size() < limit && !part.empty() && FoldLatin1(city).find(part) != std::wstring::npos)
            names.push_back(WideToUtf8(city + L":" + country));
    });
    return names;
}
