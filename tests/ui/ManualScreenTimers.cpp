// SPDX-License-Identifier: GPL-3.0-or-later
#include "ManualScreenTimers.h"

#include <algorithm>

void ManualScreenTimers::start(const void* owner, int id, int milliseconds, std::function<void()> tick)
{
    const long long period = std::max(milliseconds, 1);
    m_timers[{owner, id}] = {period, m_now + period, std::move(tick)};
}

void ManualScreenTimers::stop(const void* owner, int id)
{
    m_timers.erase({owner, id});
}

void ManualScreenTimers::advance(long long milliseconds, const std::function<void(long long)>& onStep)
{
    const long long end = m_now + milliseconds;
    for (;;) {
        const auto next = std::ranges::min_element(
            m_timers, [](const auto& a, const auto& b) { return a.second.due < b.second.due; });
        if (next == m_timers.end() || next->second.due > end)
            break;
        if (onStep)
            onStep(next->second.due - m_now);
        m_now = next->second.due;
        next->second.due += next->second.period;
        const auto tick = next->second.tick; // the tick may stop or restart its own timer
        tick();
    }
    if (onStep && end > m_now)
        onStep(end - m_now);
    m_now = end;
}
