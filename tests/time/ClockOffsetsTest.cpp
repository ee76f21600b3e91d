// SPDX-License-Identifier: GPL-3.0-or-later
#include "time/ClockOffsets.h"

#include "support/FakeDeviceClock.h"
#include "time/CityPanelValues.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <tuple>

using C = FakeDeviceClock;

namespace {

const CityZoneTexts Paris {L"1", L"1:88:2:298:3"};
const CityZoneTexts Sydney {L"10", L"1:277:2:95:3"};
const CityZoneTexts NewYork {L"-5", L"1:67:2:305:2"};
const SystemTime July = C::at(2026, 7, 1, 12, 0, 0);

} // namespace

TEST(ZoneOffset, SplitsAddsShiftsAndReadsTheBias)
{
    // 100 and -100 are still plain hours.
    const std::tuple<ZoneOffset, bool, OffsetParts> splits[] = {{5, false, {5, 0}}, {100, false, {100, 0}},
        {-100, false, {-100, 0}}, {101, true, {1, 1}}, {-101, true, {-1, -1}}, {-330, true, {-3, -30}}};
    for (const auto& [offset, hhmm, parts] : splits) {
        EXPECT_EQ(IsHhmmOffset(offset), hhmm) << offset;
        EXPECT_EQ(SplitZoneOffset(offset), parts) << offset;
    }

    // 100 + 1 lands in the hhmm form; absurd catalogue values wrap at 32 bits instead of overflowing.
    const std::tuple<ZoneOffset, std::int32_t, ZoneOffset> shifts[] = {{530, 1, 630}, {-330, 1, -230}, {-3, 1, -2},
        {100, 1, 101}, {-101, 1, -1}, {530, std::numeric_limits<std::int32_t>::max(), 430}};
    for (const auto& [offset, shift, shifted] : shifts)
        EXPECT_EQ(AddDaylightShift(offset, shift), shifted) << offset << " + " << shift;

    const std::pair<std::int32_t, ZoneOffset> biases[]
        = {{-330, 470}, {210, -270}, {-60, 1}, {0, 0}, {300, -5}, {-345, 455}, {-765, 1155}, {-720, 12}};
    for (const auto& [bias, offset] : biases)
        EXPECT_EQ(BiasZoneOffset(bias), offset) << bias;
}

TEST(ClockOffsets, DeviceOffsetComesFromTheBiasOrTheHomeCity)
{
    // Synchronised: the bias alone, its minutes keeping the bias's sign. Otherwise the home city with its
    // daylight saving read at device time; the bias plays no part.
    const std::tuple<bool, std::int32_t, CityZoneTexts, DeviceOffset> cases[]
        = {{true, -330, Paris, {5, -30}}, {true, 210, Paris, {-3, 30}}, {false, -330, {L"530", L"0:0:0:0:0"}, {5, 30}},
            {false, 0, {L"-330", L"1:67:2:305:2"}, {-2, -30}}};
    for (const auto& [syncltz, bias, home, expected] : cases)
        EXPECT_EQ(ComputeDeviceOffset(syncltz, bias, home, July), expected) << bias << " " << home.timeZoneText;
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
    const std::array cities {Paris, CityZoneTexts {L"9", L"0:0:0:0:0"}, Sydney};
    std::array<ClockSlot, 4> slots {};
    slots[3].offset = 77;
    ComputeCityOffsets(slots, cities, false, -330, {2, 0}, July);
    EXPECT_EQ(slots[0], ClockSlot {470});
    EXPECT_EQ(slots[1], ClockSlot {9});
    SystemTime sydneyEnd = C::at(2026, 4, 5, 3, 0, 0); // 5 April counted in 2026, then numbered 2027
    sydneyEnd.year = 2027;
    EXPECT_EQ(slots[2], (ClockSlot {10, 1, C::at(2026, 10, 4, 2, 0, 0), sydneyEnd}));
    EXPECT_EQ(slots[3].offset, 77); // no city for it: left alone

    ComputeCityOffsets(slots, cities, true, 210, {2, 0}, July);
    EXPECT_EQ(slots[0], (ClockSlot {2, 1, C::at(2026, 3, 29, 2, 0, 0), C::at(2026, 10, 25, 3, 0, 0)}));

    // A city's daylight saving follows the city's own date.
    const CityZoneTexts london {L"0", L"1:88:1:298:2"};
    const DeviceOffset tokyo {9, 0};
    // Device in Tokyo on the start day; London reaches that day only at 09:00 Tokyo time.
    EXPECT_EQ(ComputeCitySlot(london, tokyo, C::at(2026, 3, 29, 8, 59, 59, 999)).offset, 0);
    EXPECT_EQ(ComputeCitySlot(london, tokyo, C::at(2026, 3, 29, 9, 0, 0, 1)).offset, 1);
    // New Year in Tokyo, still 2026 in New York: the boundaries are those of the device's year.
    const ClockSlot newYork = ComputeCitySlot(NewYork, tokyo, C::at(2027, 1, 1, 5, 0, 0));
    EXPECT_EQ(newYork, (ClockSlot {-5, 1, C::at(2027, 3, 8, 2, 0, 0), C::at(2027, 11, 1, 2, 0, 0)}));
}

TEST(CityPanelValues, StatusPeriodAndTimeZone)
{
    const SystemTime february = C::at(2026, 2, 1, 12, 0, 0);
    const std::tuple<CityZoneTexts, SystemTime, CityPanelValues> cases[] = {
        {{L"530", L"0:0:0:0:0"}, July, {L"Never observing", L"-", L"5h30"}},
        {Paris, July, {L"Observing Now", L"29/3/2026-25/10/2026", L"1h + 1h (DST)"}},
        {{L"-330", L"1:67:2:305:2"}, July, {L"Observing Now", L"8/3/2026-1/11/2026", L"-3h30 + 1h (DST)"}},
        // A southern city in February: its period starts in October, so it is not observing now.
        {Sydney, february, {L"Not observing now", L"4/10/2026-5/4/2027", L"10h"}},
        // The text is cut as it stands, not read as a number.
        {{L"100", L"0"}, July, {L"Never observing", L"-", L"1h00"}},
        {{L"-10", L"0"}, July, {L"Never observing", L"-", L"-h10"}},
        // A start past the last supported day (31/12/30827) never applies; both dates read 1 January.
        {{L"0", L"1:10519714:6195:300:2"}, July, {L"Not observing now", L"1/1/2026-1/1/2026", L"0h"}},
    };
    for (const auto& [city, now, expected] : cases) {
        const CityPanelValues values = ComputeCityPanelValues(city, {2, 0}, now);
        EXPECT_EQ(std::tie(values.status, values.period, values.timeZone),
            std::tie(expected.status, expected.period, expected.timeZone));
    }
}
