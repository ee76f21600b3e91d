// SPDX-License-Identifier: GPL-3.0-or-later
#include "weather/WmoWeatherCodes.h"

#include <algorithm>
#include <array>
#include <utility>

namespace {

// The codes of a day's weather as Open-Meteo documents them for its `weather_code`.
constexpr std::array<std::pair<int, std::wstring_view>, 28> Words {{
    {0, L"Clear sky"},
    {1, L"Mainly clear"},
    {2, L"Partly cloudy"},
    {3, L"Overcast"},
    {45, L"Fog"},
    {48, L"Rime fog"},
    {51, L"Light drizzle"},
    {53, L"Drizzle"},
    {55, L"Dense drizzle"},
    {56, L"Freezing drizzle"},
    {57, L"Dense freezing drizzle"},
    {61, L"Light rain"},
    {63, L"Rain"},
    {65, L"Heavy rain"},
    {66, L"Freezing rain"},
    {67, L"Heavy freezing rain"},
    {71, L"Light snow"},
    {73, L"Snow"},
    {75, L"Heavy snow"},
    {77, L"Snow grains"},
    {80, L"Rain showers"},
    {81, L"Heavy rain showers"},
    {82, L"Violent rain showers"},
    {85, L"Snow showers"},
    {86, L"Heavy snow showers"},
    {95, L"Thunderstorm"},
    {96, L"Thunderstorm, hail"},
    {99, L"Thunderstorm, heavy hail"},
}};

} // namespace

std::wstring_view WmoWeatherWords(int code)
{
    const auto found = std::find_if(Words.begin(), Words.end(), [code](const auto& row) { return row.first == code; });
    return found == Words.end() ? std::wstring_view() : found->second;
}
