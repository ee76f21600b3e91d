// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/QtScreenTimers.h"

void QtScreenTimers::start(const void* owner, int id, int milliseconds, std::function<void()> tick)
{
    auto& timer = m_timers[{owner, id}];
    if (timer)
        timer->disconnect();
    else
        timer = std::make_unique<QTimer>();
    QObject::connect(timer.get(), &QTimer::timeout, timer.get(), std::move(tick));
    timer->start(milliseconds);
}

void QtScreenTimers::stop(const void* owner, int id)
{
    if (const auto it = m_timers.find({owner, id}); it != m_timers.end())
        it->second->stop();
}
