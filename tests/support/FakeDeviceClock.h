// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "device/DeviceClock.h"
#include "device/SystemDeviceClock.h"

#include <ctime>

// A device clock driven by hand: set a time, advance it.
class FakeDeviceClock final : public DeviceClock
{
public:
    // Starts on Thursday 1 January 2026, 12:00:00.000, bias 0.
    FakeDeviceClock() = default;
    explicit FakeDeviceClock(const SystemTime& start, std::int32_t bias = 0)
        : m_now(start)
        , m_bias(bias)
    { }

    // A local time with its day of week filled in; milliseconds default to 0.
    static SystemTime at(int year, int month, int day, int hour, int minute, int second, int ms = 0)
    {
        // In the order of struct tm: second, minute, hour, day, month from 0, year from 1900, then what timegm fills.
        std::tm tm {second, minute, hour, day, month - 1, year - 1900, 0, 0, 0, 0, nullptr};
        timegm(&tm);
        return SystemDeviceClock::fromTm(tm, ms);
    }

    SystemTime localTime() const override { return m_now; }
    std::int32_t standardBias() const override { return m_bias; }

    void set(const SystemTime& now) { m_now = now; }
    void advanceMilliseconds(long long milliseconds)
    {
        const long long total = m_now.milliseconds + milliseconds;
        const long long seconds = total >= 0 ? total / 1000 : (total - 999) / 1000;
        m_now = at(m_now.year, m_now.month, m_now.day, m_now.hour, m_now.minute,
            static_cast<int>(m_now.second + seconds), static_cast<int>(total - seconds * 1000));
    }

private:
    SystemTime m_now = at(2026, 1, 1, 12, 0, 0);
    std::int32_t m_bias = 0;
};
