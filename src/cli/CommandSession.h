// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/CommandRequest.h"
#include "cli/StreamMessageSink.h"
#include "session/DeviceSession.h"
#include "settings/RegistrySettings.h"
#include "store/CityCatalogue.h"
#include "store/WeatherFavourites.h"

#include <iosfwd>
#include <memory>

// The device as a text command sees it: the same state, data and clock as the program's window,
// the city catalogue loaded, and messages for the user printed to standard error.
class CommandSession
{
public:
    // Nothing, with the reason printed on `err`, when the state folder cannot be used.
    [[nodiscard]] static std::unique_ptr<CommandSession> open(const CommandRequest& request, std::ostream& err);

    DeviceSession& device() { return *m_device; }
    const DeviceClock& clock() const { return m_device->clock(); }
    const DevicePaths& paths() const { return m_device->paths(); }
    RegistrySettings& settings() { return m_registry; }
    CityCatalogue& cities() { return m_cities; }
    // The weather favourites, loaded from the shipped list on first use.
    WeatherFavourites& favourites();
    MessageSink& messages() { return *m_messages; }

private:
    CommandSession(std::unique_ptr<StreamMessageSink> messages, std::unique_ptr<DeviceSession> device);

    std::unique_ptr<StreamMessageSink> m_messages;
    std::unique_ptr<DeviceSession> m_device;
    RegistrySettings m_registry;
    CityCatalogue m_cities;
    std::unique_ptr<WeatherFavourites> m_favourites;
};
