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

// A service's screen, built from the environment, the window and the launcher's stores it names, in that
// order. A screen that can show a city's weather is handed the launcher's way to open the weather screen.
template<class ScreenType, class... Stores>
std::unique_ptr<Screen> makeScreen(ServiceContext& context)
{
    auto screen
        = std::make_unique<ScreenType>(context.environment, context.window, std::get<Stores&>(context.stores)...);
    if constexpr (requires { screen->setWeatherOpener(&context.weather); })
        screen->setWeatherOpener(&context.weather);
    return screen;
}

} // namespace

const std::array<Service, ServiceCount>& Services()
{
    static const std::array<Service, ServiceCount> table {{
        {StringIds::WorldClocks, Icons::Service, makeScreen<WorldClockScreen, CityCatalogue, WeatherFavourites>},
        {StringIds::WorldWeather, Icons::Service, makeScreen<WeatherScreen, WeatherFavourites>},
        {StringIds::WorldMap, Icons::Service, makeScreen<MapScreen, CityCatalogue, WeatherFavourites>},
        {StringIds::CurrencyConverter, Icons::Service, makeScreen<CurrencyScreen, const InitialCurrencyList>},
        {StringIds::Measurements, Icons::Service, makeScreen<MeasureScreen>},
        {StringIds::ClothingSizes, Icons::Service, makeScreen<ClothingScreen>},
        {StringIds::DialingCodes, Icons::Service, makeScreen<DialingScreen>},
        {StringIds::TodoList, Icons::Service, nullptr}, // listed and selectable, opens nothing
    }};
    return table;
}
