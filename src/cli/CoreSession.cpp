// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/CoreSession.h"

#include "device/StateFolder.h"
#include "text/WideText.h"

#include <ostream>

void CoreSession::ErrorStreamSink::showMessage(std::wstring_view text, std::wstring_view caption)
{
    m_err << WideToUtf8(caption) << ": " << WideToUtf8(text) << '\n';
}

std::unique_ptr<CoreSession> CoreSession::open(const StartOptions& options, std::ostream& err)
{
    const auto folder = StateFolder::locate(options.stateDir);
    std::string error;
    if (!StateFolder::prepare(folder, error)) {
        err << "wanderkit: " << error << '\n';
        return nullptr;
    }
    ErrorStreamSink messages(err);
    auto hive = SettingsHive::open(folder / "registry.db", messages);
    auto objects = hive ? ObjectStore::open(folder / "objectstore.db", messages) : nullptr;
    if (!objects) {
        err << "wanderkit: " << StateFolder::openFailure(folder / (hive ? "objectstore.db" : "registry.db")) << '\n';
        return nullptr;
    }
    std::unique_ptr<CoreSession> session(new CoreSession(options, err, std::move(hive), std::move(objects)));
    session->m_cities.Load();
    return session;
}

CoreSession::CoreSession(const StartOptions& options, std::ostream& err, std::unique_ptr<SettingsHive> hive,
    std::unique_ptr<ObjectStore> objects)
    : m_messages(err)
    , m_clock(options.now ? std::make_unique<SystemDeviceClock>(*options.now) : std::make_unique<SystemDeviceClock>())
    , m_paths(StateFolder::locateDeviceRoot(options.deviceRoot))
    , m_hive(std::move(hive))
    , m_objects(std::move(objects))
    , m_registry(*m_hive)
    , m_cities(*m_objects, m_paths, m_messages)
{ }
