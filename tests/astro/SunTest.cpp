// SPDX-License-Identifier: GPL-3.0-or-later
#include "astro/HorizonArc.h"
#include "astro/MapCities.h"
#include "astro/MapPoint.h"
#include "astro/SunTimes.h"
#include "astro/TerminatorColumns.h"
#include "astro/TerminatorSun.h"
#include "settings/SettingsTable.h"
#include "support/FakeDeviceClock.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <tuple>

using C = FakeDeviceClock;

namespace {

TerminatorSun sunAt(int month, int day, int hour, int minute = 0)
{
    return computeSunForTerminator(C::at(2026, month, day, hour, minute, 0), {0, 0});
}

// The first and last night row of a column by asking the night test about every row 0 to mapHeight.
NightSpan bruteForce(const TerminatorSun& sun, int column, int mapWidth, int mapHeight)
{
    NightSpan span {column, -1, -1};
    for (int row = 0; row <= mapHeight; ++row) {
        if (isNight(sun, 180 - column * 360.0 / mapWidth, row, mapHeight)) {
            span.first = span.first == -1 ? row : span.first;
            span.last = row;
        }
    }
    return span;
}

} // namespace

TEST(TerminatorSun, JulianDay)
{
    // Meeus example 7.b in the Julian calendar; the Gregorian switch, Thursday 4 October 1582 (Julian) followed
    // by Friday 15 October, while 14 October still counts as Julian (it is 24 October in the Gregorian calendar);
    // day zero of the count, noon of 1 January 4713 BC (Julian); 1 March 1900, 59 days after 1 January 1900 0h
    // (2415020.5), as 1900 is not leap.
    const std::tuple<double, int, int, double> cases[] = {{27.5, 1, 333, 1842713.0}, {4.0, 10, 1582, 2299159.5},
        {15.0, 10, 1582, 2299160.5}, {14.0, 10, 1582, 2299169.5}, {1.5, 1, -4712, 0.0}, {1.0, 3, 1900, 2415079.5}};
    for (const auto& [day, month, year, julianDay] : cases)
        EXPECT_DOUBLE_EQ(JulianDay(day, month, year), julianDay) << year << '-' << month << '-' << day;
}

TEST(TerminatorSun, UtcInstantCarriesMinutesAndMovesTheDate)
{
    const std::tuple<SystemTime, DeviceOffset, SystemTime> cases[] = {
        {C::at(2026, 7, 13, 9, 5, 30), {5, 30}, C::at(2026, 7, 13, 3, 35, 30)}, // minutes borrow an hour
        {C::at(2026, 7, 13, 9, 45, 0), {-3, -30}, C::at(2026, 7, 13, 13, 15, 0)}, // minutes carry into the hour
        {C::at(2026, 1, 1, 3, 0, 0), {5, 30}, C::at(2025, 12, 31, 21, 30, 0)}, // back over the new year
        {C::at(2026, 2, 28, 20, 0, 0), {-10, 0}, C::at(2026, 3, 1, 6, 0, 0)}, // forward over the month end
    };
    for (const auto& [local, offset, utc] : cases)
        EXPECT_EQ(UtcInstant(local, offset), utc) << local.hour << ':' << local.minute;
}

TEST(TerminatorSun, PositionAtKnownInstants)
{
    // Worked with a separate calculator from the series, degrees to radians through 3.14 / 180:
    // J2000.0 (T = 0): L0 = 280.46646, M = 357.52911, C = -0.0904809, lambda = 280.366372,
    // eps0 = 23.4392911, e = 0.40885981 rad; RA = atan2(cos e sin lambda, cos lambda) = 281.080684,
    // dec = asin(sin e sin lambda) = -0.401989817 rad; sidereal = 100.46061837 (T = 0). 02:00 on
    // 2 January at +14 is the same instant. Then T = 0.26214921: L0 = 358.039934, M = 74.651808,
    // lambda = 359.890798 (just before the equinox); T = 0.26971253: lambda = 269.874476, dec near -e.
    // Local time, its offset; day fraction, right ascension, declination, sidereal angle.
    const std::tuple<SystemTime, DeviceOffset, double, double, double, double> cases[] = {
        {C::at(2000, 1, 1, 12, 0, 0), {0, 0}, 0.5, 281.08068415547206, -0.40198981701008707, 100.46061837},
        {C::at(2000, 1, 2, 2, 0, 0), {14, 0}, 0.5, 281.08068415547206, -0.40198981701008707, 100.46061837},
        {C::at(2026, 3, 20, 12, 0, 0), {0, 0}, 0.5, 359.7322530801724, -0.002023734017404928, 178.0341772207048},
        {C::at(2026, 12, 21, 18, 0, 0), {0, 0}, 0.75, 269.6683010955494, -0.40885562117797586, 90.31926371777445},
    };
    for (const auto& [local, offset, dayFraction, rightAscension, declination, siderealAngle] : cases) {
        const TerminatorSun sun = computeSunForTerminator(local, offset);
        EXPECT_DOUBLE_EQ(sun.dayFraction, dayFraction);
        EXPECT_NEAR(sun.rightAscension, rightAscension, 1e-9);
        EXPECT_NEAR(sun.declination, declination, 1e-12);
        EXPECT_NEAR(sun.siderealAngle, siderealAngle, 1e-9);
    }
    // Meeus example 25.a, 1992 October 13.0 TD: apparent RA 198.38083 degrees, declination -7.78507
    // degrees (-0.1358742 rad). Pi taken as 3.14 moves the angles by about 0.05 %.
    const TerminatorSun meeus = computeSunForTerminator(C::at(1992, 10, 13, 0, 0, 0), {0, 0});
    EXPECT_NEAR(meeus.rightAscension, 198.38083, 0.2);
    EXPECT_NEAR(meeus.declination, -0.1358742, 0.002);
}

TEST(HorizonArc, DayAndNightByLatitude)
{
    // 20 March 2026, 12:00 UTC: the Sun stands over longitude 0, so at every latitude short of the poles
    // 60 degrees either side of it is well inside the day and 120 or more well inside the night.
    const std::pair<double, bool> cases[]
        = {{0, false}, {60, false}, {-60, false}, {120, true}, {-120, true}, {180, true}, {-180, true}};
    for (const int row : {10, 69, 128})
        for (const auto& [lonW, night] : cases)
            EXPECT_EQ(isNight(sunAt(3, 20, 12), lonW, row, 138), night) << row << ' ' << lonW;

    // On the equator at the equinox cos H0 = sin(-0.8333 x 3.14/180) / cos(dec) = -0.014544, so
    // H0 = acos(-0.014544) x 180/3.14 = 90.88 degrees: the day is a little longer than half.
    const HorizonArc arc = RowHorizonArc(sunAt(3, 20, 12), 69, 138);
    ASSERT_EQ(arc.kind, HorizonArc::Kind::Crossing);
    EXPECT_NEAR(arc.halfDay, 90.88 / 360, 0.00005);

    // Near the solstices the summer pole has the Sun all day and the winter pole none; at the equinox both
    // poles see it, since the horizon lies 0.83 degrees below the true one. Month, north pole, south pole.
    using Kind = HorizonArc::Kind;
    const std::tuple<int, Kind, Kind> poles[] = {{6, Kind::AlwaysDay, Kind::AlwaysNight},
        {12, Kind::AlwaysNight, Kind::AlwaysDay}, {3, Kind::AlwaysDay, Kind::AlwaysDay}};
    for (const auto& [month, north, south] : poles) {
        const TerminatorSun sun = sunAt(month, 21, 12);
        EXPECT_EQ(std::tuple(RowHorizonArc(sun, 0, 138).kind, RowHorizonArc(sun, 69, 138).kind,
                      RowHorizonArc(sun, 138, 138).kind),
            std::tuple(north, Kind::Crossing, south))
            << month;
        EXPECT_EQ(isNight(sun, 45, 0, 138), north == Kind::AlwaysNight) << month;
        EXPECT_EQ(isNight(sun, -150, 138, 138), south == Kind::AlwaysNight) << month;
    }
}

TEST(TerminatorColumns, SamplesMatchAScanOfEveryRow)
{
    const std::pair<int, int> sizes[] = {{1, 1}, {7, 3}, {240, 138}, {331, 197}};
    // Month, day, hour, minute.
    const std::array<int, 4> instants[]
        = {{1, 5, 3, 17}, {3, 20, 12, 0}, {4, 10, 12, 0}, {6, 21, 0, 0}, {9, 23, 7, 10}, {12, 21, 9, 30}};
    for (const auto& [month, day, hour, minute] : instants) {
        const TerminatorSun sun = sunAt(month, day, hour, minute);
        for (const auto& [width, height] : sizes) {
            for (const NightSpan& sample : ComputeTerminatorColumns(sun, width, height, month).samples)
                ASSERT_EQ(sample, bruteForce(sun, sample.column, width, height))
                    << month << '-' << day << ' ' << hour << ':' << minute << ' ' << width << 'x' << height;
        }
    }
}

TEST(TerminatorColumns, ColumnStepAndExtent)
{
    // Month, map width; the step, the samples, the last sample (the loop runs while x < width + 2), the spans.
    // In March every column and two beyond the map's right edge; in April 0, 3, ..., 240 and two interpolated
    // columns after each but the last; 243 is not below 241 + 2, but is below 242 + 2.
    const std::tuple<int, int, int, std::size_t, int, std::size_t> cases[]
        = {{3, 240, 1, 242, 241, 242}, {4, 240, 3, 81, 240, 241}, {1, 241, 3, 81, 240, 241}, {6, 242, 3, 82, 243, 244}};
    for (const auto& [month, width, step, samples, lastSample, spans] : cases) {
        const TerminatorColumns columns = ComputeTerminatorColumns(sunAt(month, 10, 12), width, 138, month);
        EXPECT_EQ(std::tuple(columns.step, columns.samples.size(), columns.samples.back().column, columns.spans.size()),
            std::tuple(step, samples, lastSample, spans))
            << month;
    }
    EXPECT_TRUE(ComputeTerminatorColumns(sunAt(6, 1, 0), 0, 138, 6).spans.empty());
    EXPECT_TRUE(ComputeTerminatorColumns(sunAt(6, 1, 0), 240, 0, 6).spans.empty());
}

TEST(TerminatorColumns, InterpolationBetweenThreePixelSamples)
{
    // 10 April 2026 at 12:00 UTC on the 240 x 138 map, the samples checked against a full scan above: night
    // starts on row 73 at column 60 and on 95 at 63, an increment of 22 / 3 = 7, so 80 and 87 (rounding
    // would give 88); on 110 at 174 and 97 at 177, -13 / 3 = -4 toward zero, so 106 and 102 (a floor would
    // give 105 and 100). Every span ends on 138.
    const TerminatorColumns columns = ComputeTerminatorColumns(sunAt(4, 10, 12), 240, 138, 4);
    const std::pair<int, int> cases[]
        = {{60, 73}, {61, 80}, {62, 87}, {63, 95}, {174, 110}, {175, 106}, {176, 102}, {177, 97}};
    for (const auto& [column, first] : cases)
        EXPECT_EQ(columns.spans[static_cast<std::size_t>(column)], (NightSpan {column, first, 138}));
}

TEST(SunTimes, FormatterTruncatesHoursAndMinutes)
{
    // 0.12 x 60 = 7.2 minutes; 0.05 x 60 = 3.0000000000004; never rounded up to 24:00. Negative hours keep
    // "0" before each negative part, -1 and -30 both being below 10; not a number converts as the processor
    // does, to -2147483648.
    const std::pair<double, const wchar_t*> cases[] = {{0.12, L"00:07"}, {13.05, L"13:03"},
        {23.999999998433125, L"23:59"}, {-1.5, L"0-1:0-30"}, {std::nan(""), L"0-2147483648:0-2147483648"}};
    for (const auto& [hours, text] : cases)
        EXPECT_EQ(FormatHoursMinutes(hours), text) << hours;

    // The offset drops an hhmm offset's minutes; the hhmm test is "beyond 100", so 100 stays plain hours.
    const std::pair<ZoneOffset, std::int32_t> offsets[] = {{530, 5}, {-330, -3}, {-3, -3}, {100, 100}};
    for (const auto& [offset, hours] : offsets)
        EXPECT_EQ(SunOffsetHours(offset), hours) << offset;
}

TEST(SunTimes, SunriseSunsetAndDayLength)
{
    // Worked with a separate calculator from the same series (pi = 3.141592654): for 21 June 2026,
    // d = 9669.5, declination 23.4358 degrees, equation of time +0.03049 h.
    // Day, month, year, latitude, longitude, UTC offset in hours; sunrise, sunset, day length.
    const std::tuple<int, int, int, int, int, int, const wchar_t*, const wchar_t*, const wchar_t*> cases[] = {
        // London, whole degrees 51 N 0 E, on UTC: the published times are 03:43 and 20:21 at 51.5 N.
        {21, 6, 2026, 51, 0, 0, L"03:46", L"20:17", L"16:30"},
        // The equator at the equinox: tan(0) = 0 gives exactly six hours either side of noon.
        {20, 3, 2026, 0, 0, 0, L"06:07", L"18:07", L"12:00"},
        // Delhi, 28 N 77 E at +5:30, computed with 5 hours (published: 07:14 and 17:35 at +5:30).
        {1, 1, 2026, 28, 77, 5, L"06:45", L"17:05", L"10:20"},
        // Sydney, 33 S 151 E at +11 (daylight saving): the latitude's sign turns the arc correction.
        {1, 1, 2000, -33, 151, 11, L"05:52", L"20:06", L"14:13"},
        // Midnight sun at 69 N: the product is clamped to 1, a day of 23.9999999984 hours.
        {21, 6, 2026, 69, 18, 2, L"00:49", L"00:49", L"23:59"},
    };
    for (const auto& [day, month, year, latitude, longitude, utc, sunrise, sunset, dayLength] : cases) {
        const SunTimes times = computeSunTimes(day, month, year, latitude, longitude, utc);
        EXPECT_EQ(
            std::tie(times.sunriseText, times.sunsetText, times.dayLengthText), std::tuple(sunrise, sunset, dayLength))
            << latitude << ' ' << month;
    }
    // 69 N on 21 December: tan(69) x tan(0.8316 - 23.4353) = 2.6051 x -0.4163 = -1.0845, below -1 and not
    // clamped, so asin gives not-a-number, which the formatter shows as in its last row above.
    const SunTimes times = computeSunTimes(21, 12, 2026, 69, 18, 1);
    EXPECT_TRUE(std::isnan(times.sunrise) && std::isnan(times.dayLength));
    // Just south of the polar circle the product stays above -1 and the night is long but finite.
    EXPECT_EQ(computeSunTimes(21, 12, 2026, 65, 18, 1).dayLengthText, L"03:34");
}

TEST(MapPoint, MapHeightAndPointsOfWholeDegrees)
{
    // (268 - 25) x 4 / 7 = 972 / 7 = 138.9, truncated; rotated, (240 - 25) x 4 / 7 = 122.9.
    const std::pair<int, int> cases[] = {{268, 138}, {240, 122}, {25, 0}, {31, 3}};
    for (const auto& [workArea, map] : cases)
        EXPECT_EQ(MapHeightFor(workArea), map) << workArea;

    // Longitude, latitude, map width and height, the point. The middle column and row; at 90 N,
    // 69 - 90 x 138 / 180 = 69 - 69.000000000000014, truncated to 0; at 90 S one row below the map and at
    // 180 E one column past its right edge; odd sizes halve as integers; Paris, 960 + 10.67 and 540 - 288;
    // the extreme coordinates of a hand-edited file, whose products overflow an int, far off the map.
    const std::tuple<int, int, int, int, MapPoint> points[] = {{0, 0, 240, 138, {120, 69}}, {0, 90, 240, 138, {120, 0}},
        {0, -90, 240, 138, {120, 138}}, {-180, 0, 240, 138, {0, 69}}, {180, 0, 240, 138, {240, 69}},
        {0, 0, 241, 139, {120, 69}}, {2, 48, 1920, 1080, {970, 252}}, {INT_MAX, INT_MIN, 240, 138, {1000000, 1000000}},
        {INT_MIN, INT_MAX, 240, 138, {-1000000, -1000000}}};
    for (const auto& [longitude, latitude, width, height, point] : points)
        EXPECT_EQ(MapPointOf(longitude, latitude, width, height), point) << longitude << ',' << latitude;
}

TEST(MapPoint, LabelSideByQuarter)
{
    // Left in the second quarter, 60 to 120 of 240 both included, and from 180 on; right elsewhere.
    const std::pair<int, bool> cases[] = {{0, false}, {59, false}, {60, true}, {120, true}, {121, false}, {179, false},
        {180, true}, {239, true}, {240, true}, {-5, false}};
    for (const auto& [x, left] : cases)
        EXPECT_EQ(LabelOnLeft(x, 240), left) << x;
    // 241 / 4 = 60 and 241 x 3 / 4 = 180 in integers.
    EXPECT_TRUE(LabelOnLeft(60, 241) && !LabelOnLeft(179, 241));
}

TEST(MapCities, SteppingWrapsAndStoredSelectionsOutsideShowTheFirstCity)
{
    // Left from the first city selects the last, right from the last the first.
    const std::tuple<std::int32_t, int, std::int32_t> steps[]
        = {{0, -1, 1089}, {1089, 1, 0}, {5, -1, 4}, {5, 1, 6}, {7, 0, 7}};
    for (const auto& [selected, delta, next] : steps)
        EXPECT_EQ(MapCities::steppedSelection(selected, delta, 1090), next) << selected << ' ' << delta;
    const std::pair<std::int32_t, std::int32_t> stored[] = {{0, 0}, {1089, 1089}, {1090, 0}, {-1, 0}, {INT32_MIN, 0}};
    for (const auto& [position, shown] : stored)
        EXPECT_EQ(MapCities::validSelection(position, 1090), shown) << position;

    // "mapclock" is a DWORD: 0xFFFFFFFF reads back as -1.
    auto hive = SettingsHive::openInMemory();
    RegistrySettings settings(*hive);
    EXPECT_EQ(MapCities::storedSelection(settings), 0); // missing
    WriteSetting(settings, Settings::MapClock, 0xFFFFFFFFu);
    EXPECT_EQ(MapCities::storedSelection(settings), -1);
}

TEST(MapCities, MarkedCitiesAndTheirDefaults)
{
    // The key exists (with another value) and "clock2" is stored as 17: the rest are missing values, read as
    // their defaults 0, 684, 565 and 988.
    const std::array<std::uint32_t, 5> expected {0, 684, 17, 565, 988};
    for (const bool writeBack : {true, false}) {
        auto hive = SettingsHive::openInMemory();
        RegistrySettings settings(*hive);
        settings.SetDWORD(Settings::WorldClockKey, L"syncltz", 0);
        WriteSetting(settings, Settings::Clock2, 17);
        EXPECT_EQ(MapCities::markedPositions(settings, writeBack), expected);
        for (std::size_t i = 0; i < expected.size(); ++i) {
            const DwordSetting& row = *Settings::ClockCities[i];
            const std::uint32_t stored = settings.GetDWORD(row.subkey, row.name);
            const bool present = settings.Status() == RegistrySettings::Read;
            EXPECT_EQ(present, writeBack || i == 2) << i;
            EXPECT_EQ(stored, present ? expected[i] : 0) << i;
        }
    }
}
