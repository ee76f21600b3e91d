// SPDX-License-Identifier: GPL-3.0-or-later
#include "astro/SunTimes.h"

#include <gtest/gtest.h>

#include <cmath>
#include <tuple>

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
