// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

class Screen;

// Opens the World Weather screen for a city of another screen (World Clocks, the map): the screen is then
// in its entry mode, showing that city's favourite without a way to change it.
class WeatherOpener
{
public:
    virtual ~WeatherOpener() = default;

    // Runs the weather screen modally over `opener` for `cityName` (a catalogue name).
    virtual void openWeather(Screen& opener, const std::wstring& cityName) = 0;
};
