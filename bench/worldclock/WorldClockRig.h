// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "device/DevicePaths.h"
#include "device/SystemDeviceClock.h"
#include "screens/worldclock/WorldClockScreen.h"
#include "settings/SettingsHive.h"
#include "store/CityCatalogue.h"
#include "store/ObjectStore.h"
#include "store/WeatherFavourites.h"
#include "ui/DeviceWindow.h"
#include "ui/QtMessageSink.h"

#include <QTemporaryDir>
#include <QTimer>

#include <functional>

// The World Clocks screen on the shipped data, in a fresh state folder, ready to be run.
struct WorldClockRig
{
    WorldClockRig()
        : paths(WANDERKIT_DEVICE_ROOT)
        , settings(SettingsHive::open(state.path().toStdString() + "/registry.db", messages))
        , objects(ObjectStore::open(state.path().toStdString() + "/objectstore.db", messages))
        , environment {clock, paths, *settings, *objects, messages}
        , window(QSize(240, 268))
        , cities(*objects, paths, messages)
        , favourites(*objects, paths, messages)
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

    QTemporaryDir state;
    SystemDeviceClock clock;
    DevicePaths paths;
    QtMessageSink messages;
    std::unique_ptr<SettingsHive> settings;
    std::unique_ptr<ObjectStore> objects;
    ScreenEnvironment environment;
    DeviceWindow window;
    CityCatalogue cities;
    WeatherFavourites favourites;
    WorldClockScreen screen;
};
