// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "time/SystemTime.h"
#include "time/ZoneOffset.h"

// The Sun as the day/night boundary needs it, for one instant. The formulas are the low-precision
// solar coordinates of Meeus, "Astronomical Algorithms" (chapters 7, 12 and 25), with degrees and
// radians converted through pi taken as 3.14.
struct TerminatorSun
{
    double dayFraction = 0; // UTC time of day as a fraction of a day, [0, 1)
    double rightAscension = 0; // degrees, [0, 360]
    double declination = 0; // radians
    double siderealAngle = 0; // degrees, [0, 360]
};

// Device local time less the device offset: minutes carry at 60 and below 0, and the date moves with
// the hour when it leaves [0, 24).
[[nodiscard]] SystemTime UtcInstant(const SystemTime& localTime, DeviceOffset utcOffset);

// Julian day of a calendar day that may carry a fraction; Gregorian from 15 October 1582 on.
[[nodiscard]] double JulianDay(double day, int month, int year);
// Julian centuries since 1 January 2000, 12:00 UTC.
[[nodiscard]] double JulianCenturies(double julianDay);

// The Sun's right ascension, declination and the sidereal angle at the device's instant.
[[nodiscard]] TerminatorSun computeSunForTerminator(const SystemTime& localTime, DeviceOffset utcOffset);
