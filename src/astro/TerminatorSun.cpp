// SPDX-License-Identifier: GPL-3.0-or-later
#include "astro/TerminatorSun.h"

#include "astro/TerminatorAngles.h"
#include "time/CalendarDays.h"

#include <cmath>

namespace {

using TerminatorAngles::DegToRad;
using TerminatorAngles::RadToDeg;
using TerminatorAngles::wrap;

constexpr double CenturiesPerDay = 2.7378507871321012e-5; // 1 / 36525

bool isGregorian(double day, int month, int year)
{
    return year > 1582 || (year == 1582 && month > 10) || (year == 1582 && month == 10 && day >= 15.0);
}

} // namespace

SystemTime UtcInstant(const SystemTime& localTime, DeviceOffset utcOffset)
{
    int minute = localTime.minute - utcOffset.minutes;
    int hour = localTime.hour - utcOffset.hours;
    if (minute >= 60) {
        minute -= 60;
        ++hour;
    } else if (minute < 0) {
        minute += 60;
        --hour;
    }
    int days = 0;
    for (; hour >= 24; hour -= 24)
        ++days;
    for (; hour < 0; hour += 24)
        --days;
    SystemTime utc = days == 0 ? localTime : AddDays(localTime, days);
    utc.hour = static_cast<std::uint16_t>(hour);
    utc.minute = static_cast<std::uint16_t>(minute);
    return utc;
}

double JulianDay(double day, int month, int year)
{
    const bool gregorian = isGregorian(day, month, year);
    if (month < 3) {
        year -= 1;
        month += 12;
    }
    int b = 0;
    if (gregorian) {
        const int a = year / 100;
        b = 2 - a + a / 4;
    }
    const int whole = static_cast<int>(365.25 * (year + 4716)) + static_cast<int>(30.6001 * (month + 1)) + b;
    return whole + day - 1524.5;
}

double JulianCenturies(double julianDay)
{
    return (julianDay - 2451545.0) * CenturiesPerDay;
}

TerminatorSun computeSunForTerminator(const SystemTime& localTime, DeviceOffset utcOffset)
{
    const SystemTime utc = UtcInstant(localTime, utcOffset);
    TerminatorSun sun;
    sun.dayFraction = (utc.hour + utc.minute / 60.0 + utc.second / 3600.0) / 24;
    const double t = JulianCenturies(JulianDay(utc.day + sun.dayFraction, utc.month, utc.year));

    // Mean longitude and anomaly: the square covers coefficient and T together.
    const double l0 = wrap(280.46646 + 36000.76983 * t + (0.0003032 * t) * (0.0003032 * t), 360);
    const double m = wrap(357.52911 + 35999.05029 * t - (0.0001537 * t) * (0.0001537 * t), 360);
    const double mr = m * DegToRad;
    const double centre = std::sin(mr) * (1.914602 - 0.004817 * t - 1.4e-5 * t * t)
        + std::sin(2 * mr) * (0.019993 - 0.000101 * t) + std::sin(3 * mr) * 0.000289;
    const double trueLongitude = l0 + centre;
    const double omega = 125.04 - 1934.136 * t;
    const double lambda = trueLongitude - 0.00569 - 0.00478 * std::sin(omega * DegToRad);
    const double eps0 = 23 + (26 + (21.448 - t * (46.815 + t * (0.00059 - t * 0.001813))) / 60) / 60;

    const double lambdaR = lambda * DegToRad;
    const double obliquity = eps0 * DegToRad + (0.00256 * DegToRad) * std::cos(omega * DegToRad); // radians
    sun.rightAscension = wrap(std::atan2(std::cos(obliquity) * std::sin(lambdaR), std::cos(lambdaR)) * RadToDeg, 360);
    sun.declination = std::asin(std::sin(obliquity) * std::sin(lambdaR));
    sun.siderealAngle
        = wrap(100.46061837 + 36000.770053608 * t + 0.000387933 * t * t - 2.5833118057349522e-8 * t * t * t, 360);
    return sun;
}
