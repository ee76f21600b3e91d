// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/Screen.h"

#include <cstdint>

class CityCatalogue;
class WeatherFavourites;
class WeatherOpener;

// A screen that shows catalogue cities and can open the World Weather screen for one of them (World
// Clocks, the map). It holds the two stores and the opener those screens share.
class CityScreen : public Screen
{
    Q_OBJECT

public:
    // Who opens the weather screen for a city; without one the screen opens nothing.
    void setWeatherOpener(WeatherOpener* opener) { m_weatherOpener = opener; }

protected:
    CityScreen(ScreenEnvironment& environment, DeviceWindow& window, MenuBarId menuBar, QString name,
        CityCatalogue& cities, WeatherFavourites& favourites);

    // Opens the weather screen for the catalogue city at `position`, when an opener is set.
    void openWeatherFor(std::uint32_t position);

    CityCatalogue& m_cities;
    WeatherFavourites& m_favourites;

private:
    WeatherOpener* m_weatherOpener = nullptr;
};
