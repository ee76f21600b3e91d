// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/ScreenTimers.h"

#include <algorithm>
#include <map>
#include <utility>

// Screen timers that fire only when the test moves time on with advance(), in the order they fall due.
class ManualScreenTimers final : public ScreenTimers
{
public:
    void start(const void* owner, int id, int milliseconds, std::function<void()> tick) override
    {
        const long long period = std::max(milliseconds, 1);
        m_timers[{owner, id}] = {period, m_now + period, std::move(tick)};
    }
    void stop(const void* owner, int id) override { m_timers.erase({owner, id}); }

    // Moves time on by `milliseconds`, firing every timer that falls due on the way; `onStep` is called
    // with each step of time before the timers at its end fire (to move a clock along).
    void advance(long long milliseconds, const std::function<void(long long)>& onStep)
    {
        const long long end = m_now + milliseconds;
        for (;;) {
            const auto next = std::ranges::min_element(
                m_timers, [](const auto& a, const auto& b) { return a.second.due < b.second.due; });
            if (next == m_timers.end() || next->second.due > end)
                break;
            onStep(next->second.due - m_now);
            m_now = next->second.due;
            next->second.due += next->second.period;
            const auto tick = next->second.tick; // the tick may stop or restart its own timer
            tick();
        }
        if (end > m_now)
            onStep(end - m_now);
        m_now = end;
    }

private:
    struct Timer
    {
        long long period;
        long long due;
        std::function<void()> tick;
    };

    long long m_now = 0;
    std::map<std::pair<const void*, int>, Timer> m_timers;
};
