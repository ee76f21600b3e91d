// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/ScreenTimers.h"

#include <map>
#include <utility>

// Screen timers that fire only when the test moves time on with advance(), in the order they fall due.
class ManualScreenTimers final : public ScreenTimers
{
public:
    void start(const void* owner, int id, int milliseconds, std::function<void()> tick) override;
    void stop(const void* owner, int id) override;

    // Moves time on by `milliseconds`, firing every timer that falls due on the way; `onStep` is called
    // with each step of time before the timers at its end fire (to move a clock along).
    void advance(long long milliseconds, const std::function<void(long long)>& onStep = {});
    bool isRunning(const void* owner, int id) const { return m_timers.contains({owner, id}); }

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
