// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "device/DevicePaths.h"
#include "session/DeviceOptions.h"

#include <filesystem>
#include <memory>
#include <string>

class DeviceClock;
class MessageSink;
class ObjectStore;
class SettingsHive;

// The device one run works on: its clock, the device root with the shipped files, and the state
// folder's registry and object store. The program, the text commands, the tests and the benches all
// open the device here, so they find and open it the same way.
class DeviceSession
{
public:
    // Opens the state folder (created private when missing) and its two state files. A state file that
    // is not a database is set aside and reported to `messages`, which must outlive the session.
    // Nothing, with the reason in `error`, when the folder or its files cannot be used.
    [[nodiscard]] static std::unique_ptr<DeviceSession> open(
        const DeviceOptions& options, MessageSink& messages, std::string& error);
    // Fresh state in memory over `deviceRoot`, on the caller's clock (tests and benches).
    [[nodiscard]] static std::unique_ptr<DeviceSession> openInMemory(
        const std::filesystem::path& deviceRoot, const DeviceClock& clock);

    ~DeviceSession();

    const DeviceClock& clock() const { return m_clock; }
    const DevicePaths& paths() const { return m_paths; }
    SettingsHive& settings() { return *m_settings; }
    ObjectStore& objects() { return *m_objects; }
    // Empty for a session in memory.
    const std::filesystem::path& stateFolder() const { return m_stateFolder; }

private:
    DeviceSession(std::unique_ptr<DeviceClock> ownClock, const DeviceClock& clock, DevicePaths paths,
        std::unique_ptr<SettingsHive> settings, std::unique_ptr<ObjectStore> objects,
        std::filesystem::path stateFolder);

    std::unique_ptr<DeviceClock> m_ownClock;
    const DeviceClock& m_clock;
    DevicePaths m_paths;
    std::unique_ptr<SettingsHive> m_settings;
    std::unique_ptr<ObjectStore> m_objects;
    std::filesystem::path m_stateFolder;
};
