// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>

class CityCatalogue;
class WeatherFavourites;

// Finds the favourite a command names: its position in store order ("0") or its name, compared without
// regard to case; the first in store order wins.
[[nodiscard]] std::optional<std::uint32_t> FindFavourite(WeatherFavourites& favourites, const std::string& word);

// The favourite whose city, looked up by name in the catalogue, lies nearest a forecast's place, within
// a quarter of a degree of latitude and of longitude; the first in store order wins a tie.
[[nodiscard]] std::optional<std::uint32_t> FavouriteNear(
    WeatherFavourites& favourites, CityCatalogue& cities, double latitude, double longitude);
