// SPDX-License-Identifier: GPL-3.0-or-later
#include "device/SystemDeviceClock.h"

#include <algorithm>
#include <chrono>
#include <climits>
#include <cstdio>
#include <ctime>

namespace {

long long systemMilliseconds()
{
    using namespace std::chrono;
    return duration_cast<milliseconds>(system_clock::now().time_since_epoch()).count();
}

std::tm toTm(const SystemTime& t)
{
    std::tm tm {};
    tm.tm_year = t.year - 1900;
    tm.tm_mon = t.month - 1;
    tm.tm_mday = t.day;
    tm.tm_hour = t.hour;
    tm.tm_min = t.minute;
    tm.tm_sec = t.second;
    tm.tm_isdst = -1;
    return tm;
}

} // namespace

SystemDeviceClock::SystemDeviceClock()
{
    tzset();
}

SystemDeviceClock::SystemDeviceClock(const SystemTime& start)
{
    tzset();
    std::tm tm = toTm(start);
    const long long startMs = static_cast<long long>(std::mktime(&tm)) * 1000;
    m_shiftMs = startMs - systemMilliseconds();
}

SystemTime SystemDeviceClock::localTime() const
{
    const long long ms = systemMilliseconds() + m_shiftMs;
    const std::time_t seconds = static_cast<std::time_t>(ms / 1000);
    std::tm tm {};
    localtime_r(&seconds, &tm);
    return fromTm(tm, static_cast<int>(ms % 1000));
}

SystemTime SystemDeviceClock::fromTm(const std::tm& tm, int milliseconds)
{
    SystemTime t;
    t.year = static_cast<std::uint16_t>(tm.tm_year + 1900);
    t.month = static_cast<std::uint16_t>(tm.tm_mon + 1);
    t.dayOfWeek = static_cast<std::uint16_t>(tm.tm_wday);
    t.day = static_cast<std::uint16_t>(tm.tm_mday);
    t.hour = static_cast<std::uint16_t>(tm.tm_hour);
    t.minute = static_cast<std::uint16_t>(tm.tm_min);
    t.second = static_cast<std::uint16_t>(tm.tm_sec);
    t.milliseconds = static_cast<std::uint16_t>(milliseconds);
    return t;
}

std::int32_t SystemDeviceClock::standardBias() const
{
    // The bias is standard time's, to which daylight saving adds: the smaller of the offsets at the start
    // and the middle of the year. (glibc's `timezone` takes Irish summer time for standard, winter for a
    // negative saving.)
    long leastOffset = LONG_MAX;
    const std::uint16_t year = localTime().year;
    for (const int month : {1, 7}) {
        std::tm tm = toTm(SystemTime {.year = year, .month = static_cast<std::uint16_t>(month), .day = 1, .hour = 12});
        const std::time_t at = std::mktime(&tm);
        localtime_r(&at, &tm);
        leastOffset = std::min(leastOffset, tm.tm_gmtoff);
    }
    return static_cast<std::int32_t>(-leastOffset / 60);
}

std::optional<SystemTime> SystemDeviceClock::parseLocalTime(const char* text)
{
    int y = 0, mo = 0, d = 0, h = 0, mi = 0, s = 0;
    char tail = 0;
    if (std::sscanf(text, "%4d-%2d-%2d %2d:%2d:%2d%c", &y, &mo, &d, &h, &mi, &s, &tail) != 6)
        return std::nullopt;
    if (y < 1601 || y > 30827 || mo < 1 || mo > 12 || d < 1 || d > 31 || h > 23 || mi > 59 || s > 59 || h < 0 || mi < 0
        || s < 0)
        return std::nullopt;
    SystemTime t;
    t.year = static_cast<std::uint16_t>(y);
    t.month = static_cast<std::uint16_t>(mo);
    t.day = static_cast<std::uint16_t>(d);
    t.hour = static_cast<std::uint16_t>(h);
    t.minute = static_cast<std::uint16_t>(mi);
    t.second = static_cast<std::uint16_t>(s);
    // Reject dates such as 31 February: normalising them would change the day.
    std::tm tm = toTm(t);
    std::tm check = tm;
    timegm(&check);
    if (check.tm_mday != d || check.tm_mon != mo - 1)
        return std::nullopt;
    return t;
}
