// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <nlohmann/json.hpp>
#include <string>

// An Open-Meteo /v1/forecast response with the daily values the importer reads, for `days` days from
// `firstDate` ("YYYY-MM-DD", days 1 to 28 of a month). Day i (0-based) has weather code 61, highest
// 20.6 + i °C, lowest 12.5 °C, felt 18.7/10.9 °C, 40 % precipitation, wind 17.5 km/h from 225 degrees,
// sunrise 07:42 and sunset 16:58.
struct OpenMeteoFixture
{
    static nlohmann::json response(
        int days, const std::string& firstDate = "2026-11-24", double latitude = 48.86, double longitude = 2.34)
    {
        nlohmann::json daily;
        const int firstDay = std::stoi(firstDate.substr(8));
        for (int i = 0; i < days; ++i) {
            const int day = firstDay + i;
            const std::string date = firstDate.substr(0, 8) + (day < 10 ? "0" : "") + std::to_string(day);
            const std::pair<const char*, nlohmann::json> values[] = {{"time", date}, {"weather_code", 61},
                {"temperature_2m_max", 20.6 + i}, {"temperature_2m_min", 12.5}, {"apparent_temperature_max", 18.7},
                {"apparent_temperature_min", 10.9}, {"precipitation_probability_max", 40}, {"wind_speed_10m_max", 17.5},
                {"wind_direction_10m_dominant", 225}, {"sunrise", date + "T07:42"}, {"sunset", date + "T16:58"}};
            for (const auto& [name, value] : values)
                daily[name].push_back(value);
        }
        nlohmann::json units = {{"time", "iso8601"}, {"weather_code", "wmo code"},
            {"precipitation_probability_max", "%"}, {"wind_speed_10m_max", "km/h"},
            {"wind_direction_10m_dominant", "\u00B0"}, {"sunrise", "iso8601"}, {"sunset", "iso8601"}};
        for (const char* name :
            {"temperature_2m_max", "temperature_2m_min", "apparent_temperature_max", "apparent_temperature_min"})
            units[name] = "\u00B0C";
        return {{"latitude", latitude}, {"longitude", longitude}, {"generationtime_ms", 0.05},
            {"utc_offset_seconds", 3600}, {"timezone", "Europe/Paris"}, {"timezone_abbreviation", "CET"},
            {"elevation", 43.0}, {"daily_units", units}, {"daily", daily}};
    }
};
