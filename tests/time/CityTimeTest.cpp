// SPDX-License-Identifier: GPL-3.0-or-later
#include "time/CityTime.h"

#include "support/FakeDeviceClock.h"

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
        {-5, {1, 0}, C::at(2026, 3, 1, 5, 59, 10), L"23:59:10", L"28/2/2026 Sat"},
        {9, {-5, 0}, C::at(2024, 2, 28, 10, 0, 0), L"00:00:00", L"29/2/2024 Thu"},
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
    EXPECT_EQ(FormatCityDate(0, {0, 0}, false, C::at(2026, 3, 14, 9, 5, 7)).text, L"14/3 Sat");
    EXPECT_EQ(FormatCityDate(0, {0, 0}, false, C::at(2026, 3, 8, 9, 5, 7)).text, L"8/3 Sun");
}
