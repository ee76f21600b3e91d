// SPDX-License-Identifier: GPL-3.0-or-later
#include "time/MapTwelveHour.h"

#include <gtest/gtest.h>

TEST(MapTwelveHour, MarksAndTheirBlanks)
{
    const std::pair<const wchar_t*, const wchar_t*> cases[] = {
        {L"00:00:00", L"12:00:00AM"}, // midnight: 12 and "AM" with no blank
        {L"01:05:09", L"01:05:09 AM"},
        {L"11:59:59", L"11:59:59 AM"},
        {L"12:00:00", L"12:00:00PM"}, // noon keeps 12, "PM" with no blank
        {L"13:00:00", L"01:00:00 PM"},
        {L"23:59:59", L"11:59:59 PM"},
    };
    for (const auto& [time24, twelve] : cases)
        EXPECT_EQ(MapTwelveHour(time24), twelve) << time24;
}
