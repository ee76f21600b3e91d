// SPDX-License-Identifier: GPL-3.0-or-later
#include "time/ClockOffsets.h"

#include "support/FakeDeviceClock.h"

#include <gtest/gtest.h>

#include <array>
#include <tuple>

using C = FakeDeviceClock;

namespace {

const CityZoneTexts Paris {L"1", L"1:88:2:298:3"};
const CityZoneTexts Sydney {L"10", L"1:277:2:95:3"};
const CityZoneTexts Tokyo {L"9", L"0:0:0:0:0"};

} // namespace

TEST(ClockOffsets, DeviceOffsetComesFromTheBiasOrTheHomeCity)
{
    const SystemTime july = C::at(2026, 7, 1, 12, 0, 0);
    const std::tuple<bool, std::int32_t, CityZoneTexts, SystemTime, DeviceOffset> cases[] = {
        // Synchronised: the bias alone, its minutes keeping the bias's sign.
        {true, -330, Paris, july, {5, -30}},
        {true, 210, Paris, july, {-3, 30}},
        // Otherwise the home city with its daylight saving read at device time; the bias plays no part.
        {false, -330, {L"530", L"0:0:0:0:0"}, july, {5, 30}},
        {false, 0, Paris, july, {2, 0}},
        {false, 0, Paris, C::at(2026, 1, 15, 12, 0, 0), {1, 0}},
        {false, 0, {L"-330", L"1:67:2:305:2"}, july, {-2, -30}},
    };
    for (const auto& [syncltz, bias, home, now, expected] : cases)
        EXPECT_EQ(ComputeDeviceOffset(syncltz, bias, home, now), expected) << bias << " " << home.timeZoneText;
}

// Whole years, day by day at several times of day, for the home city and for any other, against the rule
// stated in day numbers: the start day is inside, the end day outside except at 0 ms. Southern and day-366
// ends fall in the next year, so the period runs to the end of this one (day 400: no end this year) and
// January to March are outside; an end before the start in the same month never starts (day 400).
TEST(ClockOffsets, DaylightAcrossWholeYears)
{
    // Rule, year, first and last day in the period.
    const std::tuple<std::wstring, int, int, int> rules[]
        = {{L"1:88:2:298:3", 2026, 88, 298}, {L"1:88:2:298:3", 2024, 88, 298}, {L"1:277:2:95:3", 2026, 277, 400},
            {L"1:270:2:95:3", 2023, 270, 400}, {L"1:270:2:95:3", 2024, 270, 400}, {L"1:88:2:366:3", 2026, 88, 400},
            {L"1:88:2:366:3", 2024, 88, 366}, {L"1:100:2:95:3", 2026, 400, 400}};
    const int times[][4] = {{0, 0, 0, 0}, {0, 0, 0, 1}, {2, 0, 0, 0}, {12, 30, 15, 500}, {23, 59, 59, 999}};
    for (const auto& [rule, year, start, end] : rules) {
        for (int d = 1; d <= (year % 4 == 0 ? 366 : 365); ++d) {
            for (const auto& t : times) {
                const SystemTime now = C::at(year, 1, d, t[0], t[1], t[2], t[3]);
                const int shift = d >= start && (d < end || (d == end && t[3] == 0)) ? 1 : 0;
                const ClockSlot city = ComputeCitySlot({L"0", rule}, {0, 0}, now);
                ASSERT_EQ(ComputeDeviceOffset(false, 0, {L"0", rule}, now).hours, shift) << rule << " day " << d;
                ASSERT_EQ(city.offset, shift) << rule << " day " << d << " at " << t[0] << ":" << t[1] << "." << t[3];
                ASSERT_EQ(city.observes, 1);
            }
        }
    }
}

TEST(ClockOffsets, HomeSlotKeepsTheBiasUnlessSynchronised)
{
    const SystemTime now = C::at(2026, 7, 1, 12, 0, 0);
    const std::array cities {Paris, Tokyo, Sydney};
    std::array<ClockSlot, 4> slots {};
    slots[3].offset = 77;
    ComputeCityOffsets(slots, cities, false, -330, {2, 0}, now);
    EXPECT_EQ(slots[0], ClockSlot {470});
    EXPECT_EQ(slots[1], ClockSlot {9});
    SystemTime sydneyEnd = C::at(2026, 4, 5, 3, 0, 0); // 5 April counted in 2026, then numbered 2027
    sydneyEnd.year = 2027;
    EXPECT_EQ(slots[2], (ClockSlot {10, 1, C::at(2026, 10, 4, 2, 0, 0), sydneyEnd}));
    EXPECT_EQ(slots[3].offset, 77); // no city for it: left alone

    ComputeCityOffsets(slots, cities, false, 210, {2, 0}, now);
    EXPECT_EQ(slots[0].offset, -270);
    ComputeCityOffsets(slots, cities, true, 210, {2, 0}, now);
    EXPECT_EQ(slots[0], (ClockSlot {2, 1, C::at(2026, 3, 29, 2, 0, 0), C::at(2026, 10, 25, 3, 0, 0)}));

    // A city's daylight saving follows the city's own date.
    const CityZoneTexts london {L"0", L"1:88:1:298:2"};
    const DeviceOffset tokyo {9, 0};
    // Device in Tokyo on the start day; London reaches that day only at 09:00 Tokyo time.
    EXPECT_EQ(ComputeCitySlot(london, tokyo, C::at(2026, 3, 29, 8, 59, 59, 999)).offset, 0);
    EXPECT_EQ(ComputeCitySlot(london, tokyo, C::at(2026, 3, 29, 9, 0, 0, 1)).offset, 1);
    // New Year in Tokyo, still 2026 in New York: the boundaries are those of the device's year.
    const ClockSlot newYork = ComputeCitySlot({L"-5", L"1:67:2:305:2"}, tokyo, C::at(2027, 1, 1, 5, 0, 0));
    EXPECT_EQ(newYork, (ClockSlot {-5, 1, C::at(2027, 3, 8, 2, 0, 0), C::at(2027, 11, 1, 2, 0, 0)}));
}
