// SPDX-License-Identifier: GPL-3.0-or-later
#include "FakeDeviceClock.h"

#include "device/SystemDeviceClock.h"

#include <ctime>

SystemTime FakeDeviceClock::at(int year, int month, int day, int hour, int minute, int second, int ms)
{
    std::tm tm {};
    tm.tm_year = year - 1900;
    tm.tm_mon = month - 1;
    tm.tm_mday = day;
    tm.tm_hour = hour;
    tm.tm_min = minute;
    tm.tm_sec = second;
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
