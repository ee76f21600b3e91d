// SPDX-License-Identifier: GPL-3.0-or-later
#include "time/CityTime.h"

#include "support/FakeDeviceClock.h"
#include "time/CalendarDays.h"
#include "time/ClockSlotText.h"
#include "time/HandGeometry.h"
#include "time/MapTwelveHour.h"
#include "time/TwelveHourTime.h"

#include <gtest/gtest.h>

#include <tuple>

using C = FakeDeviceClock;

TEST(CityTime, FormatsTimeAndDateFromDeviceTime)
{
    const std::tuple<ZoneOffset, DeviceOffset, SystemTime, std::wstring, std::wstring> cases[] = {
        // City "0" on a device at GMT: the device's own time.
        {0, {0, 0}, C::at(2026, 7, 15, 9, 5, 7), L"09:05:07", L"15/7/2026 Wed"},
        // The minute sum of exactly 0: the time stays on the day, the date steps back (to a Monday).
        {-330, {0, 0}, C::at(2026, 3, 10, 3, 30, 0), L"00:00:00", L"9/3/2026 Done"},
        {530, {0, 0}, C::at(2026, 3, 10, 18, 30, 0), L"00:00:00", L"11/3/2026 Wed"},
        {545, {0, 0}, C::at(2026, 12, 31, 23, 20, 0), L"05:05:00", L"1/1/2027 Fri"},
        // A device in India, a city at GMT: minutes borrow from the hour, the date steps back.
        {0, {5, 30}, C::at(2026, 1, 1, 4, 10, 0), L"22:40:00", L"31/12/2025 Wed"},
        // The hour wraps once only, and the date moves by one day at most.
        {50, {0, 0}, C::at(2026, 3, 10, 10, 0, 0), L"36:00:00", L"11/3/2026 Wed"},
        {-50, {0, 0}, C::at(2026, 3, 10, 10, 0, 0), L"0-16:00:00", L"9/3/2026 Done"},
    };
    for (const auto& [city, device, now, time, date] : cases) {
        SCOPED_TRACE(testing::Message() << city << " from (" << device.hours << ", " << device.minutes << ")");
        EXPECT_EQ(FormatCityTime(city, device, true, now), time);
        EXPECT_EQ(FormatCityTime(city, device, false, now), time.substr(0, time.size() - 3));
        EXPECT_EQ(FormatCityDate(city, device, true, now).text, date);
    }
}

TEST(ClockSlotText, HomeShowsTheDevicesTimeAndCitiesDropSecondsAndYear)
{
    // The home slot's own offset plays no part: it shows the device's time.
    const ClockSlotText home = FormatHomeSlot(ClockSlot {470}, C::at(2026, 3, 9, 3, 4, 5, 600));
    EXPECT_EQ(home.time + L" " + home.date, L"03:04:05 9/3/2026 Done");
    const ClockSlotText city = FormatCitySlot(ClockSlot {0}, {5, 30}, C::at(2026, 1, 1, 4, 10, 59));
    EXPECT_EQ(city.time + L" " + city.date, L"22:40 31/12 Wed");

    EXPECT_TRUE(IsDeviceMidnight(FormatHomeSlot(ClockSlot {470}, C::at(2026, 3, 9, 0, 0, 0, 999))));
    EXPECT_FALSE(IsDeviceMidnight(FormatHomeSlot(ClockSlot {470}, C::at(2026, 3, 9, 0, 0, 1))));
}

TEST(TwelveHourTime, ClocksRewriteTheHourAndTheMapAddsItsMark)
{
    // The clocks' rewrite: the 24-hour text, the twelve-hour text and its mark.
    const std::tuple<std::wstring, std::wstring, std::wstring> cases[]
        = {{L"00:00:00", L"12:00:00", L"AM"}, {L"11:59", L"11:59", L"AM"}, {L"12:00", L"12:00", L"PM"},
            {L"23:59:59", L"11:59:59", L"PM"}, {L"36:00", L"36:00", L"PM"}};
    for (const auto& [time24, time12, suffix] : cases) {
        const TwelveHourTime t = ToTwelveHour(time24);
        EXPECT_EQ(t.time + L"|" + t.suffix, time12 + L"|" + suffix) << time24;
    }

    // The map's rewrite: midnight and noon take their mark with no blank before it.
    const std::pair<const wchar_t*, const wchar_t*> map[] = {{L"00:00:00", L"12:00:00AM"},
        {L"01:05:09", L"01:05:09 AM"}, {L"12:00:00", L"12:00:00PM"}, {L"13:00:00", L"01:00:00 PM"}};
    for (const auto& [time24, twelve] : map)
        EXPECT_EQ(MapTwelveHour(time24), twelve) << time24;
}

TEST(HandGeometry, ShortPiIntegerHalvingAndTruncationTowardZero)
{
    EXPECT_EQ(HandAngle(15), 0.0);
    EXPECT_DOUBLE_EQ(HandAngle(45), 3.14159); // the dials' short pi, not a full-precision one
    EXPECT_DOUBLE_EQ(HandAngle(0), -1.570795);

    // A box 101 wide and high around (50, 50): the half-size is 50, not 50.5. Left and up land one pixel
    // short of the mirror images of right and down.
    const std::tuple<double, double, DialPoint> cases[] = {{15, 1.0, {100, 50}}, {30, 1.0, {50, 100}},
        {45, 1.0, {1, 50}}, {0, 1.0, {50, 1}}, {7.5, 1.0, {85, 16}}, {52.5, 0.6, {30, 30}}, {37.5, 0.6, {30, 71}}};
    for (const auto& [position, length, point] : cases)
        EXPECT_EQ(HandPoint(position, length, 50, 50, 0, 0, 101, 101), point) << position;
}

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
