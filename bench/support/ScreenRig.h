// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DeviceRig.h"
#include "store/CityCatalogue.h"
#include "store/WeatherFavourites.h"

#include <QTimer>

#include <functional>

// A screen built on the city catalogue and the weather favourites (World Clocks, World Map) on the
// shipped data, in a fresh state folder, ready to be run.
template<typename ScreenType>
struct ScreenRig : DeviceRig
{
    ScreenRig()
        : cities(device->objects(), device->paths(), messages)
        , favourites(device->objects(), device->paths(), messages)
        , screen(environment, window, cities, favourites)
    {
        cities.Load();
        favourites.loadFavouritesOnce();
        window.show();
    }

    // Runs the screen and calls `work` once it is shown; the screen ends when `work` returns.
    void run(const std::function<void()>& work)
    {
        QObject::connect(&window, &DeviceWindow::screenShown, &window, [&](Screen&) {
            QTimer::singleShot(0, &window, [&] {
                work();
                screen.endScreen();
            });
        });
        window.run(screen);
    }

    CityCatalogue cities;
    WeatherFavourites favourites;
    ScreenType screen;
};
