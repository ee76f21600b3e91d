// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "device/DeviceClock.h"

#include <ctime>
#include <optional>

// The system's local time (zone chosen by TZ), optionally started at a given local time
// and running on from there.
class SystemDeviceClock final : public DeviceClock
{
public:
    SystemDeviceClock();
    // Starts the clock at `start` (local time); it runs on in real time.
    explicit SystemDeviceClock(const SystemTime& start);

    SystemTime localTime() const override;
    std::int32_t standardBias() const override;

    // Parses "YYYY-MM-DD HH:MM:SS"; nothing for text that is not a valid date and time.
    [[nodiscard]] static std::optional<SystemTime> parseLocalTime(const char* text);
    // A broken-down C time as a SystemTime.
    static SystemTime fromTm(const std::tm& tm, int milliseconds);

private:
    long long m_shiftMs = 0; // added to the system clock, in milliseconds
};
