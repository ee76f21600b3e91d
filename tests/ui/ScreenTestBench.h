// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FakeDeviceClock.h"
#include "ManualScreenTimers.h"
#include "RecordingMessageBox.h"
#include "RecordingMessageSink.h"
#include "TempDir.h"
#include "session/DeviceSession.h"
#include "settings/SettingsTable.h"
#include "store/CityCatalogue.h"
#include "store/WeatherFavourites.h"
#include "ui/Commands.h"
#include "ui/DeviceWindow.h"
#include "ui/Screen.h"
#include "ui/ScreenEnvironment.h"
#include "ui/SoftKeyBar.h"
#include "ui/Spinner.h"

#include <QTest>

#include <functional>
#include <memory>
#include <vector>

// The child of `parent` named `name`: a screen's spinner, field or list.
template<class Widget>
Widget* child(const QObject& parent, const char* name)
{
    return parent.findChild<Widget*>(QString::fromLatin1(name));
}

// Whether white text shows anywhere in `area` of `image`: a pixel of lightness 235 or more (its smoothed edges
// included). The backgrounds' lightest colours stay below that.
inline bool showsWhite(const QImage& image, const QRect& area)
{
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            if (image.pixelColor(x, y).lightness() >= 235)
                return true;
        }
    }
    return false;
}

// Everything a screen needs, fresh for each test (this header also brings what every screen test uses): a hand-driven
// clock, a device root in a temporary folder, in-memory state stores, the city catalogue and weather favourites over
// them, recorded messages and message boxes, and a device window.
class ScreenTestBench
{
public:
    explicit ScreenTestBench(QSize workArea = QSize(240, 268));

    // Runs `screen` modally; `drive` is called once it is shown and must end it (or the program).
    int run(Screen& screen, const std::function<void()>& drive);
    // Runs `screen`, lets `check` drive it, then ends it (also when a check has failed).
    void visit(Screen& screen, const std::function<void()>& check);
    // Calls `drive` with the next screen shown over `current` (a dialog it opens), once.
    void whenNextShown(Screen& current, const std::function<void(Screen&)>& drive);
    // Presses `key` on the widget that has the focus.
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(window.focusWidget(), key, modifiers);
    }
    // Moves the device clock and the screens' timers on together, firing the timers that fall due.
    void advance(long long milliseconds)
    {
        timers.advance(milliseconds, [this](long long step) { clock.advanceMilliseconds(step); });
    }
    // The whole device window, rendered.
    QImage render() { return window.grab().toImage(); }
    // Writes a setting as another program would.
    template<class Setting, class Value>
    void store(const Setting& setting, const Value& value)
    {
        RegistrySettings registry(settings);
        WriteSetting(registry, setting, value);
    }
    // A DWORD setting as stored, or NotStored when it cannot be read.
    std::uint32_t stored(const DwordSetting& setting);
    static constexpr std::uint32_t NotStored = 0xFFFFFFFFu;
    // "name|code|last update|country" of every favourite, in store order.
    std::vector<std::wstring> favouriteRecords();
    // Loads the catalogue and the favourites from the device root, as the launcher does at its start.
    void loadStores() { cities.Load(), favourites.loadFavouritesOnce(); }

    TempDir root;
    FakeDeviceClock clock;
    std::unique_ptr<DeviceSession> device;
    const DevicePaths& paths;
    SettingsHive& settings;
    ObjectStore& objects;
    RecordingMessageSink messages;
    RecordingMessageBox boxes;
    ManualScreenTimers timers;
    ScreenEnvironment environment;
    DeviceWindow window;
    CityCatalogue cities {objects, paths, messages};
    WeatherFavourites favourites {objects, paths, messages};
};
