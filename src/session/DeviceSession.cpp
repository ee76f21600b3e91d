// SPDX-License-Identifier: GPL-3.0-or-later
#include "session/DeviceSession.h"

#include "device/StateFolder.h"
#include "device/SystemDeviceClock.h"
#include "settings/SettingsHive.h"
#include "store/ObjectStore.h"

std::unique_ptr<DeviceSession> DeviceSession::open(
    const DeviceOptions& options, MessageSink& messages, std::string& error)
{
    auto folder = StateFolder::locate(options.stateDir);
    if (!StateFolder::prepare(folder, error))
        return nullptr;
    auto settings = SettingsHive::open(folder / "registry.db", messages);
    auto objects = settings ? ObjectStore::open(folder / "objectstore.db", messages) : nullptr;
    if (!objects) {
        error = StateFolder::openFailure(folder / (settings ? "objectstore.db" : "registry.db"));
        return nullptr;
    }
    auto clock
        = options.now ? std::make_unique<SystemDeviceClock>(*options.now) : std::make_unique<SystemDeviceClock>();
    const DeviceClock& clockRef = *clock;
    return std::unique_ptr<DeviceSession>(
        new DeviceSession(std::move(clock), clockRef, DevicePaths(StateFolder::locateDeviceRoot(options.deviceRoot)),
            std::move(settings), std::move(objects), std::move(folder)));
}

std::unique_ptr<DeviceSession> DeviceSession::openInMemory(
    const std::filesystem::path& deviceRoot, const DeviceClock& clock)
{
    return std::unique_ptr<DeviceSession>(new DeviceSession(nullptr, clock, DevicePaths(deviceRoot),
        SettingsHive::openInMemory(), ObjectStore::openInMemory(), std::filesystem::path()));
}

DeviceSession::DeviceSession(std::unique_ptr<DeviceClock> ownClock, const DeviceClock& clock, DevicePaths paths,
    std::unique_ptr<SettingsHive> settings, std::unique_ptr<ObjectStore> objects, std::filesystem::path stateFolder)
    : m_ownClock(std::move(ownClock))
    , m_clock(clock)
    , m_paths(std::move(paths))
    , m_settings(std::move(settings))
    , m_objects(std::move(objects))
    , m_stateFolder(std::move(stateFolder))
{ }

DeviceSession::~DeviceSession() = default;
