// SPDX-License-Identifier: GPL-3.0-or-later
#include "time/ClockSlotText.h"

#include "support/FakeDeviceClock.h"
#include "time/TwelveHourTime.h"

#include <gtest/gtest.h>

#include <tuple>

using C = FakeDeviceClock;

TEST(ClockSlotText, HomeShowsTheDevicesTimeAndCitiesDropSecondsAndYear)
{
    const SystemTime now = C::at(2026, 3, 9, 3, 4, 5, 600);
    for (const ZoneOffset offset : {0, 470, -330}) {
        const ClockSlotText home = FormatHomeSlot(ClockSlot {offset}, now);
        EXPECT_EQ(home.time, L"03:04:05") << offset;
        EXPECT_EQ(home.date, L"9/3/2026 Done") << offset;
    }
    const ClockSlotText city = FormatCitySlot(ClockSlot {0}, {5, 30}, C::at(2026, 1, 1, 4, 10, 59));
    EXPECT_EQ(city.time, L"22:40");
    EXPECT_EQ(city.date, L"31/12 Wed");

    EXPECT_TRUE(IsDeviceMidnight(FormatHomeSlot(ClockSlot {470}, C::at(2026, 3, 9, 0, 0, 0, 999))));
    EXPECT_FALSE(IsDeviceMidnight(FormatHomeSlot(ClockSlot {470}, C::at(2026, 3, 9, 0, 0, 1))));

    // Twelve-hour time rewrites the hour and sets the mark.
    const std::tuple<std::wstring, std::wstring, std::wstring> cases[]
        = {{L"00:00:00", L"12:00:00", L"AM"}, {L"11:59", L"11:59", L"AM"}, {L"12:00", L"12:00", L"PM"},
            {L"23:59:59", L"11:59:59", L"PM"}, {L"36:00", L"36:00", L"PM"}};
    for (const auto& [time24, time12, suffix] : cases) {
        const TwelveHourTime t = ToTwelveHour(time24);
        EXPECT_EQ(t.time, time12) << time24;
        EXPECT_EQ(t.suffix, suffix) << time24;
    }
    EXPECT_EQ(ToTwelveHour(L"00:05").withSuffix(), L"12:05 AM");
}
