// SPDX-License-Identifier: GPL-3.0-or-later
#include "astro/TerminatorSun.h"

#include <gtest/gtest.h>

#include <tuple>

namespace {

SystemTime at(int year, int month, int day, int hour, int minute, int second)
{
    return {std::uint16_t(year), std::uint16_t(month), 0, std::uint16_t(day), std::uint16_t(hour),
        std::uint16_t(minute), std::uint16_t(second), 0};
}

} // namespace

TEST(TerminatorSun, JulianDayAndCenturies)
{
    const std::tuple<double, int, int, double> cases[] = {
        {1.5, 1, 2000, 2451545.0}, // J2000.0, the epoch of T
        {4.81, 10, 1957, 2436116.31}, // Sputnik's launch, Meeus example 7.a
        {27.5, 1, 333, 1842713.0}, // Julian calendar, Meeus example 7.b
        // The Gregorian switch: Thursday 4 October 1582 (Julian) was followed by Friday 15 October.
        {4.0, 10, 1582, 2299159.5}, {15.0, 10, 1582, 2299160.5},
        // 14 October 1582 still counts as Julian: it is 24 October in the Gregorian calendar.
        {14.0, 10, 1582, 2299169.5}, {1.5, 1, -4712, 0.0}, // day zero of the count, noon of 1 January 4713 BC (Julian)
        {1.0, 3, 1900, 2415079.5}, // 1900 is not: 59 days after 1 January 1900 0h (2415020.5)
    };
    for (const auto& [day, month, year, julianDay] : cases)
        EXPECT_DOUBLE_EQ(JulianDay(day, month, year), julianDay) << year << '-' << month << '-' << day;

    // T in Julian centuries of 36525 days from J2000.0.
    EXPECT_DOUBLE_EQ(JulianCenturies(2451545.0), 0.0);
    EXPECT_DOUBLE_EQ(JulianCenturies(2415020.0), -1.0); // 1900 January 0.5, 36525 days before
}

TEST(TerminatorSun, UtcInstantCarriesMinutesAndMovesTheDate)
{
    const std::tuple<SystemTime, DeviceOffset, SystemTime> cases[] = {
        {at(2026, 7, 13, 9, 5, 30), {5, 30}, at(2026, 7, 13, 3, 35, 30)}, // minutes borrow an hour
        {at(2026, 7, 13, 9, 45, 0), {-3, -30}, at(2026, 7, 13, 13, 15, 0)}, // minutes carry into the hour
        {at(2026, 1, 1, 3, 0, 0), {5, 30}, at(2025, 12, 31, 21, 30, 0)}, // back over the new year
        {at(2026, 2, 28, 20, 0, 0), {-10, 0}, at(2026, 3, 1, 6, 0, 0)}, // forward over the month end
        {at(2024, 2, 28, 23, 30, 0), {-1, -30}, at(2024, 2, 29, 1, 0, 0)}, // a leap day
    };
    for (const auto& [local, offset, expected] : cases) {
        const SystemTime utc = UtcInstant(local, offset);
        EXPECT_EQ(std::tie(utc.year, utc.month, utc.day, utc.hour, utc.minute, utc.second),
            std::tie(expected.year, expected.month, expected.day, expected.hour, expected.minute, expected.second));
    }
}

TEST(TerminatorSun, PositionAtKnownInstants)
{
    // Worked with a separate calculator from the series, degrees to radians through 3.14 / 180:
    // J2000.0 (T = 0): L0 = 280.46646, M = 357.52911, C = -0.0904809, lambda = 280.366372,
    // eps0 = 23.4392911, e = 0.40885981 rad; RA = atan2(cos e sin lambda, cos lambda) = 281.080684,
    // dec = asin(sin e sin lambda) = -0.401989817 rad; sidereal = 100.46061837 (T = 0).
    // UTC, day fraction, right ascension, declination, sidereal angle.
    const std::tuple<SystemTime, double, double, double, double> cases[] = {
        {at(2000, 1, 1, 12, 0, 0), 0.5, 281.08068415547206, -0.40198981701008707, 100.46061837},
        // T = 0.26214921: L0 = 358.039934, M = 74.651808, lambda = 359.890798 (just before the equinox).
        {at(2026, 3, 20, 12, 0, 0), 0.5, 359.7322530801724, -0.002023734017404928, 178.0341772207048},
        // T = 0.26468857: lambda = 89.909451, dec near +e.
        {at(2026, 6, 21, 6, 0, 0), 0.25, 89.89721573328346, 0.4088640372526827, 269.452970962735},
        // T = 0.26971253: lambda = 269.874476, dec near -e.
        {at(2026, 12, 21, 18, 0, 0), 0.75, 269.6683010955494, -0.40885562117797586, 90.31926371777445},
    };
    for (const auto& [utc, dayFraction, rightAscension, declination, siderealAngle] : cases) {
        const TerminatorSun sun = computeSunForTerminator(utc, {0, 0});
        EXPECT_DOUBLE_EQ(sun.dayFraction, dayFraction);
        EXPECT_NEAR(sun.rightAscension, rightAscension, 1e-9);
        EXPECT_NEAR(sun.declination, declination, 1e-12);
        EXPECT_NEAR(sun.siderealAngle, siderealAngle, 1e-9);
    }
    // Meeus example 25.a, 1992 October 13.0 TD: apparent RA 198.38083 degrees, declination -7.78507
    // degrees (-0.1358742 rad). Pi taken as 3.14 moves the angles by about 0.05 %.
    const TerminatorSun meeus = computeSunForTerminator(at(1992, 10, 13, 0, 0, 0), {0, 0});
    EXPECT_NEAR(meeus.rightAscension, 198.38083, 0.2);
    EXPECT_NEAR(meeus.declination, -0.1358742, 0.002);

    // 02:00 on 2 January at +14 is 12:00 UTC on 1 January 2000.
    const TerminatorSun utc = computeSunForTerminator(at(2000, 1, 1, 12, 0, 0), {0, 0});
    const TerminatorSun sun = computeSunForTerminator(at(2000, 1, 2, 2, 0, 0), {14, 0});
    EXPECT_EQ(std::tie(sun.dayFraction, sun.rightAscension, sun.declination, sun.siderealAngle),
        std::tie(utc.dayFraction, utc.rightAscension, utc.declination, utc.siderealAngle));
}
