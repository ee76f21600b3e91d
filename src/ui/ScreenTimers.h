// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

// Runs the screens' repeating timers. The program uses Qt's timers (QtScreenTimers); tests use one that
// they drive together with their clock, so that nothing in a test waits for real time to pass.
// A timer is named by its owner and an id; starting a running timer restarts it.
class ScreenTimers
{
public:
    virtual ~ScreenTimers() = default;

    virtual void start(const void* owner, int id, int milliseconds, std::function<void()> tick) = 0;
    virtual void stop(const void* owner, int id) = 0;
};
