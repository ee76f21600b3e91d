// SPDX-License-Identifier: GPL-3.0-or-later
#include "time/DaylightRule.h"

#include "text/WideText.h"
#include "time/CalendarDays.h"

#include <optional>

namespace {

// Cuts the next field off the front of `rest`.
std::wstring_view NextField(std::wstring_view& rest)
{
    const std::wstring_view field = BeforeFirst(rest, L':');
    rest = AfterFirst(rest, L':');
    return field;
}

std::int32_t NextNumber(std::wstring_view& rest)
{
    return Wtol(std::wstring(NextField(rest)));
}

SystemTime FirstOfYear(int year, std::int32_t hour)
{
    SystemTime firstOfYear;
    firstOfYear.year = static_cast<std::uint16_t>(year);
    firstOfYear.month = 1;
    firstOfYear.day = 1;
    firstOfYear.hour = static_cast<std::uint16_t>(hour);
    return firstOfYear;
}

std::optional<SystemTime> Boundary(int year, std::int32_t day, std::int32_t hour)
{
    return MoveByDays(FirstOfYear(year, hour), std::int64_t {day} - 1);
}

} // namespace

DaylightRule ParseDaylightRule(std::wstring_view text)
{
    DaylightRule rule;
    rule.shiftText = NextField(text);
    if (!rule.observes())
        return rule;
    rule.shift = Wtol(rule.shiftText);
    rule.startDay = NextNumber(text);
    rule.startHour = NextNumber(text);
    rule.endDay = NextNumber(text);
    rule.endHour = NextNumber(text);
    return rule;
}

DaylightPeriod DaylightPeriodOf(const DaylightRule& rule, int year)
{
    const auto start = Boundary(year, rule.startDay, rule.startHour);
    auto end = Boundary(year, rule.endDay, rule.endHour);
    // Only the year field moves: day and month stay as counted in this year, leap day included.
    if (start && end && end->month < start->month)
        end->year = static_cast<std::uint16_t>(year + 1);
    if (!start || !end || end->year > LastCalendarYear) {
        const SystemTime firstOfYear = AddDays(FirstOfYear(year, 0), 0); // with its day of the week
        return {firstOfYear, firstOfYear, false};
    }
    return {*start, *end};
}

bool IsInDaylightPeriod(const DaylightPeriod& period, const SystemTime& now)
{
    return period.applies && !IsLaterDay(period.start, now) && !IsLaterDay(now, period.end);
}
