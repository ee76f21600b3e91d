// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "time/ZoneOffset.h"

#include <cstdint>
#include <string>

// Sunrise, sunset and day length of one city on one date, in the city's local hours. The Sun's
// position follows Paul Schlyter's "How to compute planetary positions"; its own constants (pi as
// 3.141592654) are not those of the day/night boundary.
struct SunTimes
{
    double sunrise = 0; // hours; may be negative, at most 24
    double sunset = 0;
    double dayLength = 0;
    double declination = 0; // radians
    std::wstring sunriseText; // "HH:MM", see FormatHoursMinutes
    std::wstring sunsetText;
    std::wstring dayLengthText;
};

// The whole hours of a city's current offset as the sunrise uses it: hhmm offsets lose their minutes
// (530 gives 5, -330 gives -3).
[[nodiscard]] std::int32_t SunOffsetHours(ZoneOffset cityOffset);

// The city at whole-degree `latitude` (north positive) and `longitude` (east positive), `utcHours`
// ahead of UTC, on day `day` of `month` of `year`.
[[nodiscard]] SunTimes computeSunTimes(int day, int month, int year, int latitude, int longitude, int utcHours);

// Truncated hours and truncated minutes of the fraction, each with "0" before it below 10: 6.5 gives
// "06:30", 0.12 "00:07". Values beyond 32 bits or not a number read as the processor converts them,
// -2147483648.
[[nodiscard]] std::wstring FormatHoursMinutes(double hours);
