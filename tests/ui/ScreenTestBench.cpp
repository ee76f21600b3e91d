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

ScreenTestBench::~ScreenTestBench() = default;

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

void ScreenTestBench::whenShown(Screen& screen, const std::function<void()>& drive)
{
    auto connection = std::make_shared<QMetaObject::Connection>();
    *connection
        = QObject::connect(&window, &DeviceWindow::screenShown, &screen, [&screen, connection, drive](Screen& shown) {
              if (&shown != &screen)
                  return;
              QObject::disconnect(*connection);
              QTimer::singleShot(0, &screen, drive);
          });
}

void ScreenTestBench::whenNextShown(Screen& current, const std::function<void(Screen&)>& drive)
{
    auto connection = std::make_shared<QMetaObject::Connection>();
    *connection
        = QObject::connect(&window, &DeviceWindow::screenShown, &current, [&current, connection, drive](Screen& shown) {
              if (&shown == &current)
                  return;
              QObject::disconnect(*connection);
              QTimer::singleShot(0, &shown, [drive, &shown] { drive(shown); });
          });
}

void ScreenTestBench::press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(window.focusWidget(), key, modifiers);
}

void ScreenTestBench::advance(long long milliseconds)
{
    timers.advance(milliseconds, [this](long long step) { clock.advanceMilliseconds(step); });
}

QImage ScreenTestBench::render()
{
    return window.grab().toImage();
}

void ScreenTestBench::store(const DwordSetting& setting, std::uint32_t value)
{
    RegistrySettings registry(settings);
    WriteSetting(registry, setting, value);
}

void ScreenTestBench::store(const StringSetting& setting, std::wstring_view text)
{
    RegistrySettings registry(settings);
    WriteSetting(registry, setting, text);
}

std::uint32_t ScreenTestBench::stored(const DwordSetting& setting)
{
    RegistrySettings registry(settings);
    const std::uint32_t value = registry.GetDWORD(setting.subkey, setting.name);
    return registry.Status() == RegistrySettings::Read ? value : NotStored;
}
