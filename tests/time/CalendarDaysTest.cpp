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
    const auto withHour = [](SystemTime date, int hour) {
        date.hour = std::uint16_t(hour);
        return date;
    };
    const SystemTime firstDay = C::at(1601, 1, 1, 0, 0, 0);
    const SystemTime lastDay = C::at(30827, 12, 31, 0, 0, 0);
    SystemTime notADate = C::at(2100, 2, 28, 0, 0, 0);
    notADate.day = 29; // 2100 is not a leap year
    // Date, days; the result, none when it cannot move. An overlong time of day carries into the days, up to
    // the last supported day: 65,535 hours are 2,730 days and 15 hours, 2026 to 2032 hold 2,557 days (two leap
    // years), and the remaining 173 days from 1 January 2033 end on 23 June.
    const std::tuple<SystemTime, std::int64_t, std::optional<SystemTime>> moves[] = {{firstDay, -1, std::nullopt},
        {lastDay, 1, std::nullopt}, {notADate, 1, std::nullopt}, {firstDay, std::int64_t {1} << 40, std::nullopt},
        {withHour(C::at(2026, 1, 1, 0, 0, 0), 65535), 0, C::at(2033, 6, 23, 15, 0, 0)},
        {withHour(lastDay, 23), 0, withHour(lastDay, 23)}, {withHour(lastDay, 24), 0, std::nullopt},
        {withHour(lastDay, 24), -1, lastDay}};
    for (const auto& [date, days, moved] : moves)
        EXPECT_EQ(MoveByDays(date, days), moved) << date.year << '-' << date.month << '-' << date.day << ' ' << days;
    EXPECT_EQ(AddDays(withHour(lastDay, 24), 1), withHour(lastDay, 24)); // what cannot move stays

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
