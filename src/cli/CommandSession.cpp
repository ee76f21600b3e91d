// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/CommandSession.h"

#include <ostream>

std::unique_ptr<CommandSession> CommandSession::open(const CommandRequest& request, std::ostream& err)
{
    auto messages = std::make_unique<StreamMessageSink>(err);
    std::string error;
    auto device = DeviceSession::open(request.device, *messages, error);
    if (!device) {
        err << "wanderkit: " << error << '\n';
        return nullptr;
    }
    std::unique_ptr<CommandSession> session(new CommandSession(std::move(messages), std::move(device)));
    session->m_cities.Load();
    return session;
}

WeatherFavourites& CommandSession::favourites()
{
    if (!m_favourites) {
        m_favourites = std::make_unique<WeatherFavourites>(m_device->objects(), m_device->paths(), *m_messages);
        m_favourites->loadFavouritesOnce();
    }
    return *m_favourites;
}

CommandSession::CommandSession(std::unique_ptr<StreamMessageSink> messages, std::unique_ptr<DeviceSession> device)
    : m_messages(std::move(messages))
    , m_device(std::move(device))
    , m_registry(m_device->settings())
    , m_cities(m_device->objects(), m_device->paths(), *m_messages)
{ }
