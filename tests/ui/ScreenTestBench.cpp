// SPDX-License-Identifier: GPL-3.0-or-later
#include "ScreenTestBench.h"

#include <QTimer>

#include <memory>

ScreenTestBench::ScreenTestBench(QSize workArea)
    : device(DeviceSession::openInMemory(root.path(), clock))
    , paths(device->paths())
    , settings(device->settings())
    , objects(device->objects())
    , environment {clock, paths, settings, objects, messages, boxes, timers}
    , window(workArea)
{
    window.show();
}

int ScreenTestBench::run(Screen& screen, const std::function<void()>& drive)
{
    QObject context;
    bool driven = false;
    QObject::connect(&window, &DeviceWindow::screenShown, &context, [&](Screen& shown) {
        if (&shown != &screen || driven)
            return;
        driven = true;
        QTimer::singleShot(0, &context, drive);
    });
    return window.run(screen);
}

void ScreenTestBench::visit(Screen& screen, const std::function<void()>& check)
{
    run(screen, [&] {
        check();
        screen.endScreen();
    });
}

void ScreenTestBench::whenNextShown(Screen& current, const std::function<void(Screen&)>& drive)
{
    auto connection = std::make_shared<QMetaObject::Connection>();
    *connection = QObject::connect(&window, &DeviceWindow::screenShown, &current, [=, &current](Screen& shown) {
        if (&shown == &current)
            return;
        QObject::disconnect(*connection);
        QTimer::singleShot(0, &shown, [drive, &shown] { drive(shown); });
    });
}

std::uint32_t ScreenTestBench::stored(const DwordSetting& setting)
{
    RegistrySettings registry(settings);
    const std::uint32_t value = registry.GetDWORD(setting.subkey, setting.name);
    return registry.Status() == RegistrySettings::Read ? value : NotStored;
}

std::vector<std::wstring> ScreenTestBench::favouriteRecords()
{
    std::vector<std::wstring> records;
    for (std::uint32_t i = 0; i < favourites.count(); ++i)
        records.push_back(favourites.getName(i) + L"|" + favourites.getLocationCode(i) + L"|"
            + favourites.getLastUpdate(i) + L"|" + favourites.getCountryFile(i));
    return records;
}
