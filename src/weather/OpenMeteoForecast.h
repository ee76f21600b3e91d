// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "weather/ForecastTable.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

// A daily forecast in the JSON form of Open-Meteo's /v1/forecast, asked for with
// daily=weather_code,temperature_2m_max,temperature_2m_min,apparent_temperature_max,apparent_temperature_min,
// precipitation_probability_max,wind_speed_10m_max,wind_direction_10m_dominant,sunrise,sunset
// and read into the five day blocks of a favourite's forecast. The first five days are taken; the last
// of them goes into block 4 and the others into the blocks before it. The twelve fields of a day:
//   0 WMO weather code, two digits ("03"), or "N/A"      6 precipitation probability ("40%")
//   1 the weather in words ("Overcast")                  7 sunrise, local time ("07:42")
//   2 maximum wind speed ("18 km/h")                     8 felt temperatures, high/low, whole °C ("19/11")
//   3 dominant wind direction, 16 points ("SW")          9 sunset ("16:58")
//   4 lowest temperature, whole °C ("13")               10 the day's date, day first ("25/11")
//   5 highest temperature, whole °C ("21")              11 the forecast's first date ("24/11")
// A value the service gives as null is "-". Numbers are rounded to the nearest whole, halves away from 0.
class OpenMeteoForecast
{
public:
    static constexpr std::size_t MaxBytes = 1024 * 1024;

    // The forecast of a response, or nothing with `error` telling what is wrong with it.
    [[nodiscard]] static std::optional<OpenMeteoForecast> read(std::string_view bytes, std::string& error);

    [[nodiscard]] const ForecastTable& table() const { return m_table; }
    // The date of the last day taken, "dd/mm/yyyy": the date part of the favourite's update key.
    [[nodiscard]] const std::wstring& lastDate() const { return m_lastDate; }
    [[nodiscard]] const std::wstring& firstDate() const { return m_firstDate; }
    [[nodiscard]] int days() const { return m_days; }
    // Where the service placed the forecast, when the response says.
    [[nodiscard]] const std::optional<double>& latitude() const { return m_latitude; }
    [[nodiscard]] const std::optional<double>& longitude() const { return m_longitude; }

private:
    friend class OpenMeteoReader;

    ForecastTable m_table;
    std::wstring m_lastDate;
    std::wstring m_firstDate;
    int m_days = 0;
    std::optional<double> m_latitude;
    std::optional<double> m_longitude;
};
