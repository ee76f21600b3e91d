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
        {40008, Icons::Service, worldClocks}, // "World Clocks"
        {40009, Icons::Service, worldWeather}, // "World Weather"
        {40025, Icons::Service, worldMap}, // "World Map"
        {40034, Icons::Service, currencyConverter}, // "Currency Converter"
        {40044, Icons::Service, measurements}, // "Measurements"
        {40045, Icons::Service, clothingSizes}, // "Clothing sizes"
        {40046, Icons::Service, dialingCodes}, // "Dialing codes"
        {40047, Icons::Service, nullptr}, // "Todo List": listed and selectable, opens nothing
    }};
    return table;
}
