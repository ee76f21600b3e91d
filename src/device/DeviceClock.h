// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "time/SystemTime.h"

#include <cstdint>

// The device's wall clock: local time and the standard bias of the local zone.
// Screens and the time engine take time only from here, so tests can fix it.
class DeviceClock
{
public:
    virtual ~DeviceClock() = default;

    // Device local date and time, milliseconds included.
    virtual SystemTime localTime() const = 0;
    // Standard (non-daylight) bias of the local zone in minutes: GMT = local + bias.
    virtual std::int32_t standardBias() const = 0;
};
