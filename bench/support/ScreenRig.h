// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "session/DeviceSession.h"
#include "store/CityCatalogue.h"
#include "store/WeatherFavourites.h"
#include "ui/DeviceWindow.h"
#include "ui/QtMessageBox.h"
#include "ui/QtMessageSink.h"
#include "ui/QtScreenTimers.h"
#include "ui/ScreenEnvironment.h"

#include <QTemporaryDir>
#include <QTimer>

#include <functional>

// A screen built on the city catalogue and the weather favourites (World Clocks, World Map) on the
// shipped data, in a fresh state folder, ready to be run.
template<typename ScreenType>
struct ScreenRig
{
    ScreenRig()
        : messages(boxes)
        , device(openDevice(state, messages))
        , environment {device->clock(), device->paths(), device->settings(), device->objects(), messages, boxes, timers}
        , window(QSize(240, 268))
        , cities(device->objects(), device->paths(), messages)
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

    // The shipped device root and a fresh state folder, on the system clock.
    static std::unique_ptr<DeviceSession> openDevice(const QTemporaryDir& state, MessageSink& messages)
    {
        std::string error;
        auto device = DeviceSession::open({state.path().toStdString(), WANDERKIT_DEVICE_ROOT, {}}, messages, error);
        if (!device)
            qFatal("%s", error.c_str());
        return device;
    }

    QTemporaryDir state;
    QtMessageBox boxes;
    QtMessageSink messages;
    std::unique_ptr<DeviceSession> device;
    QtScreenTimers timers;
    ScreenEnvironment environment;
    DeviceWindow window;
    CityCatalogue cities;
    WeatherFavourites favourites;
    ScreenType screen;
};
