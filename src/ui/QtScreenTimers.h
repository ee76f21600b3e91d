// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/ScreenTimers.h"

#include <QTimer>

#include <map>
#include <memory>
#include <utility>

// The screens' timers as Qt timers of the user-interface thread.
class QtScreenTimers final : public ScreenTimers
{
public:
    void start(const void* owner, int id, int milliseconds, std::function<void()> tick) override;
    void stop(const void* owner, int id) override;

private:
    std::map<std::pair<const void*, int>, std::unique_ptr<QTimer>> m_timers;
};
