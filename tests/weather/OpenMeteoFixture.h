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
        const std::string month = firstDate.substr(0, 8);
        const int firstDay = std::stoi(firstDate.substr(8));
        for (int i = 0; i < days; ++i) {
            const std::string date = month + (firstDay + i < 10 ? "0" : "") + std::to_string(firstDay + i);
            daily["time"].push_back(date);
            daily["weather_code"].push_back(61);
            daily["temperature_2m_max"].push_back(20.6 + i);
            daily["temperature_2m_min"].push_back(12.5);
            daily["apparent_temperature_max"].push_back(18.7);
            daily["apparent_temperature_min"].push_back(10.9);
            daily["precipitation_probability_max"].push_back(40);
            daily["wind_speed_10m_max"].push_back(17.5);
            daily["wind_direction_10m_dominant"].push_back(225);
            daily["sunrise"].push_back(date + "T07:42");
            daily["sunset"].push_back(date + "T16:58");
        }
        return {
            {"latitude", latitude},
            {"longitude", longitude},
            {"generationtime_ms", 0.05},
            {"utc_offset_seconds", 3600},
            {"timezone", "Europe/Paris"},
            {"timezone_abbreviation", "CET"},
            {"elevation", 43.0},
            {"daily_units",
                {{"time", "iso8601"}, {"weather_code", "wmo code"}, {"temperature_2m_max", "\u00B0C"},
                    {"temperature_2m_min", "\u00B0C"}, {"apparent_temperature_max", "\u00B0C"},
                    {"apparent_temperature_min", "\u00B0C"}, {"precipitation_probability_max", "%"},
                    {"wind_speed_10m_max", "km/h"}, {"wind_direction_10m_dominant", "\u00B0"}, {"sunrise", "iso8601"},
                    {"sunset", "iso8601"}}},
            {"daily", daily},
        };
    }
};
