// SPDX-License-Identifier: GPL-3.0-or-later
#include "time/CalendarDays.h"

#include "support/FakeDeviceClock.h"

#include <gtest/gtest.h>

#include <tuple>

using C = FakeDeviceClock;

TEST(CalendarDays, AddDaysWalksTheCalendarAcrossCenturies)
{
    // A calendar stepped a day at a time from month lengths, from Tuesday 1 January 1895;
    // the walk crosses 1900 (not leap), 2000 (leap) and 2100 (not leap).
    int year = 1895, month = 1, day = 1, weekday = 2;
    const auto stepped = [&] {
        return SystemTime {
            std::uint16_t(year), std::uint16_t(month), std::uint16_t(weekday), std::uint16_t(day), 13, 45, 30, 250};
    };
    const SystemTime first = stepped();
    for (std::int64_t days = 0; year < 2105; ++days) {
        const SystemTime today = stepped();
        ASSERT_EQ(AddDays(first, days), today) << days;
        const bool leap = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
        const int lengths[] = {31, leap ? 29 : 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
        weekday = (weekday + 1) % 7;
        if (++day > lengths[month - 1]) {
            day = 1;
            year += month == 12;
            month = month % 12 + 1;
        }
        ASSERT_EQ(AddDays(today, 1), stepped()) << days;
        ASSERT_EQ(AddDays(stepped(), -1), today) << days;
    }
}

TEST(CalendarDays, DaysThatCannotMoveOverlongTimesAndLaterDays)
{
    const SystemTime firstDay = C::at(1601, 1, 1, 0, 0, 0);
    const SystemTime lastDay = C::at(30827, 12, 31, 12, 0, 0);
    SystemTime notADate = C::at(2100, 2, 28, 0, 0, 0);
    notADate.day = 29; // 2100 is not a leap year
    EXPECT_EQ(AddDays(firstDay, -1), firstDay);
    EXPECT_EQ(AddDays(lastDay, 1), lastDay);
    EXPECT_EQ(AddDays(notADate, 1), notADate);
    EXPECT_EQ(AddDays(firstDay, std::int64_t {1} << 40), firstDay);

    // An overlong time of day carries into the days, up to the last supported day.
    // 65,535 hours are 2,730 days and 15 hours: 2026 to 2032 hold 2,557 days (two leap years), and the
    // remaining 173 days from 1 January 2033 end on 23 June.
    SystemTime hour65535 = C::at(2026, 1, 1, 0, 0, 0);
    hour65535.hour = 65535;
    SystemTime lastDayHour24 = C::at(30827, 12, 31, 0, 0, 0);
    lastDayHour24.hour = 24;
    SystemTime lastDayHour23 = lastDayHour24;
    lastDayHour23.hour = 23;
    EXPECT_EQ(MoveByDays(hour65535, 0), C::at(2033, 6, 23, 15, 0, 0));
    EXPECT_EQ(MoveByDays(lastDayHour23, 0), C::at(30827, 12, 31, 23, 0, 0));
    EXPECT_EQ(MoveByDays(lastDayHour24, 0), std::nullopt);
    EXPECT_EQ(MoveByDays(lastDayHour24, -1), C::at(30827, 12, 31, 0, 0, 0));
    EXPECT_EQ(AddDays(lastDayHour24, 1), lastDayHour24);

    // A later day is told by the days with their milliseconds.
    const std::tuple<SystemTime, SystemTime, bool> cases[]
        = {{C::at(2026, 3, 29, 23, 0, 0), C::at(2026, 3, 29, 1, 0, 0), false},
            {C::at(2026, 3, 29, 0, 0, 0, 1), C::at(2026, 3, 29, 23, 0, 0), true},
            {C::at(2026, 3, 30, 0, 0, 0), C::at(2026, 3, 29, 23, 59, 59, 999), true},
            {C::at(2027, 1, 1, 0, 0, 0), C::at(2026, 12, 31, 0, 0, 0, 999), true},
            {SystemTime {}, C::at(2026, 1, 1, 0, 0, 0), false}};
    for (const auto& [a, b, later] : cases)
        EXPECT_EQ(IsLaterDay(a, b), later) << a.day << " against " << b.day;
}
