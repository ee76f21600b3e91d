// SPDX-License-Identifier: GPL-3.0-or-later
// Feeds arbitrary bytes to the Open-Meteo forecast reader. Whatever it accepts must store as sixty
// fields that read back as the same five blocks, with an update date "dd/mm/yyyy".
#include "weather/OpenMeteoForecast.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::string error;
    const auto forecast = OpenMeteoForecast::read(std::string_view(reinterpret_cast<const char*>(data), size), error);
    if (!forecast) {
        if (error.empty())
            __builtin_trap();
        return 0;
    }
    const std::wstring stored = forecast->table().joined();
    if (std::count(stored.begin(), stored.end(), L'^') != ForecastTable::Blocks * ForecastTable::Fields
        || !(ForecastTable::split(stored) == forecast->table()) || forecast->lastDate().size() != 10
        || forecast->days() < 1 || forecast->days() > ForecastTable::Blocks)
        __builtin_trap();
    return 0;
}
