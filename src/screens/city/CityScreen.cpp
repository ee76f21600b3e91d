// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/city/CityScreen.h"

#include "screens/weather/WeatherOpener.h"
#include "store/CityCatalogue.h"

#include <utility>

CityScreen::CityScreen(ScreenEnvironment& environment, DeviceWindow& window, MenuBarId menuBar, QString name,
    CityCatalogue& cities, WeatherFavourites& favourites)
    : Screen(environment, window, menuBar, std::move(name))
    , m_cities(cities)
    , m_favourites(favourites)
{ }

void CityScreen::openWeatherFor(std::uint32_t position)
{
    if (m_weatherOpener)
        m_weatherOpener->openWeather(*this, m_cities.CityName(position));
}
