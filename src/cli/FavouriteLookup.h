// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

class CityCatalogue;
class DevicePaths;
class WeatherFavourites;

// A city of the weather country lists ("\weatcs\<country>"), with the location code the favourites
// dialog finds for it.
struct WeatherCity
{
    std::wstring name;
    std::wstring country;
    std::wstring locationCode;
};

// Finds the favourite a command names: its position in store order ("0") or its name, compared without
// regard to case; the first in store order wins.
[[nodiscard]] std::optional<std::uint32_t> FindFavourite(WeatherFavourites& favourites, const std::string& word);

// The favourite whose city, looked up by name in the catalogue, lies nearest a forecast's place, within
// a quarter of a degree of latitude and of longitude; the first in store order wins a tie.
[[nodiscard]] std::optional<std::uint32_t> FavouriteNear(
    WeatherFavourites& favourites, CityCatalogue& cities, double latitude, double longitude);

// The cities of the weather country lists that a command names, "City" or "City:Country", compared
// without regard to case, in country order; a city whose code cannot be found is left out.
[[nodiscard]] std::vector<WeatherCity> FindWeatherCities(const DevicePaths& paths, const std::string& word);

// Up to `limit` cities of the weather country lists whose name contains the city part of `word`, as
// "City:Country", for a word that named none.
[[nodiscard]] std::vector<std::string> WeatherCitiesContaining(
    const DevicePaths& paths, const std::string& word, std::size_t limit);
