// SPDX-License-Identifier: GPL-3.0-or-later
#include "FakeDeviceClock.h"

#include "device/SystemDeviceClock.h"

#include <ctime>

SystemTime FakeDeviceClock::at(int year, int month, int day, int hour, int minute, int second, int ms)
{
    // In the order of struct tm: second, minute, hour, day, month from 0, year from 1900, then what timegm fills.
    std::tm tm {second, minute, hour, day, month - 1, year - 1900, 0, 0, 0, 0, nullptr};
    timegm(&tm);
    return SystemDeviceClock::fromTm(tm, ms);
}

void FakeDeviceClock::advanceMilliseconds(long long milliseconds)
{
    const long long total = m_now.milliseconds + milliseconds;
    const long long seconds = total >= 0 ? total / 1000 : (total - 999) / 1000;
    m_now = at(m_now.year, m_now.month, m_now.day, m_now.hour, m_now.minute, static_cast<int>(m_now.second + seconds),
        static_cast<int>(total - seconds * 1000));
}
