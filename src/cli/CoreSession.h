// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/StartOptions.h"
#include "device/DevicePaths.h"
#include "device/MessageSink.h"
#include "device/SystemDeviceClock.h"
#include "settings/RegistrySettings.h"
#include "settings/SettingsHive.h"
#include "store/CityCatalogue.h"
#include "store/ObjectStore.h"

#include <iosfwd>
#include <memory>

// What the text commands work with: the same state folder, device root, clock and stores as the
// program's window. Messages for the user go to standard error.
class CoreSession
{
public:
    // Opens the state and loads the city catalogue; nothing (with the reason on `err`) when the state
    // folder cannot be used.
    static std::unique_ptr<CoreSession> open(const StartOptions& options, std::ostream& err);

    const SystemDeviceClock& clock() const { return *m_clock; }
    const DevicePaths& paths() const { return m_paths; }
    RegistrySettings& settings() { return m_registry; }
    CityCatalogue& cities() { return m_cities; }
    ObjectStore& objects() { return *m_objects; }
    MessageSink& messages() { return m_messages; }

private:
    class ErrorStreamSink final : public MessageSink
    {
    public:
        explicit ErrorStreamSink(std::ostream& err)
            : m_err(err)
        { }
        void showMessage(std::wstring_view text, std::wstring_view caption) override;

    private:
        std::ostream& m_err;
    };

    CoreSession(const StartOptions& options, std::ostream& err, std::unique_ptr<SettingsHive> hive,
        std::unique_ptr<ObjectStore> objects);

    ErrorStreamSink m_messages;
    std::unique_ptr<SystemDeviceClock> m_clock;
    DevicePaths m_paths;
    std::unique_ptr<SettingsHive> m_hive;
    std::unique_ptr<ObjectStore> m_objects;
    RegistrySettings m_registry;
    CityCatalogue m_cities;
};
