// SPDX-License-Identifier: GPL-3.0-or-later
#include "time/DaylightRule.h"

#include "support/FakeDeviceClock.h"

#include <gtest/gtest.h>

#include <tuple>

using C = FakeDeviceClock;

namespace {

// A date counted in one year and then given another year's number: its weekday stays the counted one.
SystemTime Renumbered(SystemTime date, int year)
{
    date.year = static_cast<std::uint16_t>(year);
    return date;
}

} // namespace

TEST(DaylightRule, ReadsFieldsUpToTheNextColonOrTheEnd)
{
    // Only exactly "0" means never: "00" and "" observe, with a shift of nothing.
    const std::pair<std::wstring, DaylightRule> cases[] = {{L"1:88:2:298:3\r", {L"1", 1, 88, 2, 298, 3}},
        {L"1:88:2:298", {L"1", 1, 88, 2, 298, 0}}, {L"1::2:x298:3", {L"1", 1, 0, 2, 0, 3}},
        {L"-1:88:2:298:3", {L"-1", -1, 88, 2, 298, 3}}, {L"0:88:2:298:3", {L"0", 0, 0, 0, 0, 0}},
        {L"00:88:2:298:3", {L"00", 0, 88, 2, 298, 3}}, {L"", {L"", 0, 0, 0, 0, 0}}};
    for (const auto& [text, rule] : cases)
        EXPECT_EQ(ParseDaylightRule(text), rule) << text;
    EXPECT_FALSE(ParseDaylightRule(L"0:88:2:298:3").observes());
    EXPECT_TRUE(ParseDaylightRule(L"00:88:2:298:3").observes() && ParseDaylightRule(L"").observes());
}

// Whether each day is in the period is checked over whole years with the clock offsets; here the
// boundaries themselves. Next-year ends are counted in this year, then given next year's number: a leap
// day in either year does not move them.
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
