// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <memory>
#include <tuple>

class CityCatalogue;
class DeviceWindow;
class Screen;
class WeatherFavourites;
class WeatherOpener;
struct InitialCurrencyList;
struct ScreenEnvironment;

// What a service's screen is built from: the shared environment and the launcher's stores.
struct ServiceContext
{
    ScreenEnvironment& environment;
    DeviceWindow& window;
    // The launcher's stores; a screen names the ones it is built with by their types.
    std::tuple<CityCatalogue&, WeatherFavourites&, const InitialCurrencyList&> stores;
    WeatherOpener& weather; // opens the World Weather screen for another screen's city
};

// One entry of the launcher, in selection order: its label, its icon, and the screen it opens.
struct Service
{
    int labelId; // string table id
    int iconId;
    std::unique_ptr<Screen> (*makeScreen)(ServiceContext& context); // nullptr: the entry opens nothing
};

inline constexpr int ServiceCount = 8;

// The launcher's eight services. Adding a screen is one row here and the screen's own class.
const std::array<Service, ServiceCount>& Services();
