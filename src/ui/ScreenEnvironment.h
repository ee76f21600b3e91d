// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class DeviceClock;
class DevicePaths;
class MessageBox;
class MessageSink;
class ObjectStore;
class ScreenTimers;
class SettingsHive;

// What every screen is given: the device's clock and files, the two state stores, the ways to tell
// the user something, and the timers. Passed by reference; the application (or a test) owns them, so screens and
// their timers never reach for globals and tests drive the clock by hand.
struct ScreenEnvironment
{
    const DeviceClock& clock;
    const DevicePaths& paths;
    SettingsHive& settings;
    ObjectStore& objects;
    MessageSink& messages;
    MessageBox& boxes;
    ScreenTimers& timers;
};
