// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ServiceTable.h"

#include "screens/clothing/ClothingScreen.h"
#include "screens/currency/CurrencyScreen.h"
#include "screens/dialing/DialingScreen.h"
#include "screens/map/MapScreen.h"
#include "screens/measure/MeasureScreen.h"
#include "screens/weather/WeatherScreen.h"
#include "screens/worldclock/WorldClockScreen.h"
#include "ui/Icons.h"
#include "ui/StringIds.h"

namespace {

std::unique_ptr<Screen> worldClocks(ServiceContext& c)
{
    auto screen = std::make_unique<WorldClockScreen>(c.environment, c.window, c.cities, c.favourites);
    screen->setWeatherOpener(&c.weather);
    return screen;
}

std::unique_ptr<Screen> worldWeather(ServiceContext& c)
{
    return std::make_unique<WeatherScreen>(c.environment, c.window, c.favourites);
}

std::unique_ptr<Screen> worldMap(ServiceContext& c)
{
    auto screen = std::make_unique<MapScreen>(c.environment, c.window, c.cities, c.favourites);
    screen->setWeatherOpener(&c.weather);
    return screen;
}

std::unique_ptr<Screen> currencyConverter(ServiceContext& c)
{
    return std::make_unique<CurrencyScreen>(c.environment, c.window, c.initialCurrencies);
}

std::unique_ptr<Screen> measurements(ServiceContext& c)
{
    return std::make_unique<MeasureScreen>(c.environment, c.window);
}

std::unique_ptr<Screen> clothingSizes(ServiceContext& c)
{
    return std::make_unique<ClothingScreen>(c.environment, c.window);
}

std::unique_ptr<Screen> dialingCodes(ServiceContext& c)
{
    return std::make_unique<DialingScreen>(c.environment, c.window);
}

} // namespace

const std::array<Service, ServiceCount>& Services()
{
    static const std::array<Service, ServiceCount> table {{
        {StringIds::WorldClocks, Icons::Service, worldClocks}, {StringIds::WorldWeather, Icons::Service, worldWeather},
        {StringIds::WorldMap, Icons::Service, worldMap},
        {StringIds::CurrencyConverter, Icons::Service, currencyConverter},
        {StringIds::Measurements, Icons::Service, measurements},
        {StringIds::ClothingSizes, Icons::Service, clothingSizes},
        {StringIds::DialingCodes, Icons::Service, dialingCodes},
        {StringIds::TodoList, Icons::Service, nullptr}, // listed and selectable, opens nothing
    }};
    return table;
}
