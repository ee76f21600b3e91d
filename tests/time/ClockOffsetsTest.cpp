// SPDX-License-Identifier: GPL-3.0-or-later
#include "time/ClockOffsets.h"

#include "support/FakeDeviceClock.h"
#include "time/CityPanelValues.h"
#include "time/DaylightRule.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <tuple>

using C = FakeDeviceClock;

namespace {

const CityZoneTexts Paris {L"1", L"1:88:2:298:3"};
const CityZoneTexts Sydney {L"10", L"1:277:2:95:3"};
const SystemTime July = C::at(2026, 7, 1, 12, 0, 0);

// A date counted in one year and then given another year's number: its weekday stays the counted one.
SystemTime Renumbered(SystemTime date, int year)
{
    date.year = static_cast<std::uint16_t>(year);
    return date;
}

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

TEST(DaylightRule, ReadsFieldsUpToTheNextColonOrTheEnd)
{
    // Only exactly "0" means never: "00" and "" observe, with a shift of nothing.
    const std::pair<std::wstring, DaylightRule> cases[] = {{L"1:88:2:298:3\r", {L"1", 1, 88, 2, 298, 3}},
        {L"1:88:2:298", {L"1", 1, 88, 2, 298, 0}}, {L"1::2:x298:3", {L"1", 1, 0, 2, 0, 3}},
        {L"-1:88:2:298:3", {L"-1", -1, 88, 2, 298, 3}}, {L"0:88:2:298:3", {L"0", 0, 0, 0, 0, 0}},
        {L"00:88:2:298:3", {L"00", 0, 88, 2, 298, 3}}, {L"", {L"", 0, 0, 0, 0, 0}}};
    for (const auto& [text, rule] : cases)
        EXPECT_EQ(ParseDaylightRule(text), rule) << text;
    EXPECT_TRUE(ParseDaylightRule(L"00:88:2:298:3").observes() && ParseDaylightRule(L"").observes());
}

// Next-year ends are counted in this year, then given next year's number: a leap day in either year does
// not move them.
TEST(DaylightRule, BuildsThisYearsBoundariesFromDayNumbers)
{
    const std::tuple<std::wstring, int, DaylightPeriod> cases[] = {
        {L"1:88:2:298:3", 2026, {C::at(2026, 3, 29, 2, 0, 0), C::at(2026, 10, 25, 3, 0, 0)}},
        // Southern: the end month comes first, so the end moves to next year (2027 is not leap).
        {L"1:277:2:95:3", 2026, {C::at(2026, 10, 4, 2, 0, 0), Renumbered(C::at(2026, 4, 5, 3, 0, 0), 2027)}},
        // Auckland in 2023, a common year: day 270 is 27 September, day 95 is 5 April (31 + 28 + 31 + 5).
        {L"1:270:2:95:3", 2023, {C::at(2023, 9, 27, 2, 0, 0), Renumbered(C::at(2023, 4, 5, 3, 0, 0), 2024)}},
        // 2024 is leap: both days fall one date earlier, the end keeps 4 April in 2025.
        {L"1:270:2:95:3", 2024, {C::at(2024, 9, 26, 2, 0, 0), Renumbered(C::at(2024, 4, 4, 3, 0, 0), 2025)}},
        // Same month, end before start: the end stays in this year.
        {L"1:100:2:95:3", 2026, {C::at(2026, 4, 10, 2, 0, 0), C::at(2026, 4, 5, 3, 0, 0)}},
        // Day 0 is the day before 1 January; as a start, its December pushes the end to next year.
        {L"1:0:2:298:3", 2026, {C::at(2025, 12, 31, 2, 0, 0), Renumbered(C::at(2026, 10, 25, 3, 0, 0), 2027)}},
        // Day 366 of a common year is 1 January of the next; its month 1 gets next year's number once.
        {L"1:88:2:366:3", 2026, {C::at(2026, 3, 29, 2, 0, 0), C::at(2027, 1, 1, 3, 0, 0)}},
        // Day 366 of a leap year is 31 December of that year: no move.
        {L"1:88:2:366:3", 2024, {C::at(2024, 3, 28, 2, 0, 0), C::at(2024, 12, 31, 3, 0, 0)}},
    };
    for (const auto& [rule, year, period] : cases)
        EXPECT_EQ(DaylightPeriodOf(ParseDaylightRule(rule), year), period) << rule << " in " << year;
}

TEST(DaylightRule, ABoundaryPastTheSupportedDatesMakesARuleThatNeverApplies)
{
    // 1 January 2026 is day 155,228 since 1 January 1601 and 31 December 30827, the last supported day, is
    // day 10,674,941 (29,227 years holding 7,087 leap days): so start day 10,519,714 falls on that last day,
    // and any hour from 24 on carries it past.
    const SystemTime lastDay = C::at(30827, 12, 31, 0, 0, 0);
    const SystemTime never = C::at(2026, 1, 1, 0, 0, 0);
    const std::tuple<std::wstring, int, DaylightPeriod> cases[] = {
        {L"1:10519714:0:300:2", 2026, {lastDay, Renumbered(C::at(2026, 10, 27, 2, 0, 0), 2027)}},
        {L"1:10519714:24:300:2", 2026, {never, never, false}},
        {L"1:88:2:2147483647:3", 2026, {never, never, false}},
        {L"1:-2147483648:2:298:3", 2026, {never, never, false}},
        // The southern end is numbered 30828, past the last supported year.
        {L"1:277:2:95:3", 30827, {C::at(30827, 1, 1, 0, 0, 0), C::at(30827, 1, 1, 0, 0, 0), false}},
    };
    for (const auto& [rule, year, period] : cases) {
        const DaylightPeriod got = DaylightPeriodOf(ParseDaylightRule(rule), year);
        EXPECT_EQ(got, period) << rule << " in " << year;
        // The first case runs from 30827 back to 2027: never in effect either.
        for (const SystemTime& now : {never, C::at(2026, 7, 1, 12, 0, 0), lastDay})
            EXPECT_FALSE(IsInDaylightPeriod(got, now)) << rule;
    }
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
        = {{L"1:88:2:298:3", 2026, 88, 298}, {L"1:277:2:95:3", 2026, 277, 400}, {L"1:270:2:95:3", 2024, 270, 400},
            {L"1:88:2:366:3", 2026, 88, 400}, {L"1:88:2:366:3", 2024, 88, 366}, {L"1:100:2:95:3", 2026, 400, 400}};
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
    EXPECT_EQ(slots[2], (ClockSlot {10, 1, C::at(2026, 10, 4, 2, 0, 0), Renumbered(C::at(2026, 4, 5, 3, 0, 0), 2027)}));
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
    const ClockSlot newYork = ComputeCitySlot({L"-5", L"1:67:2:305:2"}, tokyo, C::at(2027, 1, 1, 5, 0, 0));
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
