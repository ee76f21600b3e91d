// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class DeviceClock;
class DevicePaths;
class MessageSink;
class ObjectStore;
class SettingsHive;

// What every screen is given: the device's clock and files, the two state stores and the way to
// tell the user something. Passed by reference; the application owns them.
struct ScreenEnvironment
{
    const DeviceClock& clock;
    const DevicePaths& paths;
    SettingsHive& settings;
    ObjectStore& objects;
    MessageSink& messages;
};
