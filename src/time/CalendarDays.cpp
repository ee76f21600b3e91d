// SPDX-License-Identifier: GPL-3.0-or-later
#include "time/CalendarDays.h"

#include "text/WideText.h"

#include <optional>

namespace {

constexpr std::int64_t TicksPerMillisecond = 10'000;
constexpr std::int64_t MillisecondsPerDay = 86'400'000;
constexpr std::int64_t TicksPerDay = MillisecondsPerDay * TicksPerMillisecond;
constexpr int FirstYear = 1601;
// Days from 1 January 1601 to 1 January 1970.
constexpr std::int64_t DaysTo1970 = 134'774;

constexpr bool IsLeapYear(int year)
{
    return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
}

constexpr int DaysInMonth(int year, int month)
{
    constexpr int Lengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return month == 2 && IsLeapYear(year) ? 29 : Lengths[month - 1];
}

// Days since 1 January 1601 (Howard Hinnant's days_from_civil, shifted to the 1601 epoch).
constexpr std::int64_t DayCount(int year, int month, int day)
{
    year -= month <= 2 ? 1 : 0;
    const int era = year / 400;
    const int yearOfEra = year - era * 400;
    const int dayOfYear = (153 * (month > 2 ? month - 3 : month + 9) + 2) / 5 + day - 1;
    const int dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
    return std::int64_t {era} * 146'097 + dayOfEra - 719'468 + DaysTo1970;
}

constexpr std::int64_t LastDay = DayCount(LastCalendarYear, 12, 31);

// The calendar date of a day count (Hinnant's civil_from_days); 1 January 1601 was a Monday.
SystemTime DateOfDayCount(std::int64_t count)
{
    const std::int64_t days = count - DaysTo1970 + 719'468;
    const std::int64_t era = days / 146'097;
    const std::int64_t dayOfEra = days - era * 146'097;
    const std::int64_t yearOfEra = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36'524 - dayOfEra / 146'096) / 365;
    const std::int64_t dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const std::int64_t shiftedMonth = (5 * dayOfYear + 2) / 153;
    const std::int64_t month = shiftedMonth < 10 ? shiftedMonth + 3 : shiftedMonth - 9;
    SystemTime date;
    date.year = static_cast<std::uint16_t>(yearOfEra + era * 400 + (month <= 2 ? 1 : 0));
    date.month = static_cast<std::uint16_t>(month);
    date.day = static_cast<std::uint16_t>(dayOfYear - (153 * shiftedMonth + 2) / 5 + 1);
    date.dayOfWeek = static_cast<std::uint16_t>((count + 1) % 7);
    return date;
}

bool IsCalendarDate(const SystemTime& t)
{
    return t.year >= FirstYear && t.year <= LastCalendarYear && t.month >= 1 && t.month <= 12 && t.day >= 1
        && t.day <= DaysInMonth(t.year, t.month);
}

std::int64_t TimeOfDayMilliseconds(const SystemTime& t)
{
    return ((std::int64_t {t.hour} * 60 + t.minute) * 60 + t.second) * 1000 + t.milliseconds;
}

// The 100-ns count of a date-time, or nothing when it is not a calendar date.
std::optional<std::int64_t> ToTicks(const SystemTime& t)
{
    if (!IsCalendarDate(t))
        return std::nullopt;
    return DayCount(t.year, t.month, t.day) * TicksPerDay + TimeOfDayMilliseconds(t) * TicksPerMillisecond;
}

std::optional<SystemTime> FromTicks(std::int64_t ticks)
{
    const std::int64_t count = ticks / TicksPerDay;
    if (ticks < 0 || count > LastDay)
        return std::nullopt;
    SystemTime t = DateOfDayCount(count);
    std::int64_t ms = (ticks % TicksPerDay) / TicksPerMillisecond;
    t.milliseconds = static_cast<std::uint16_t>(ms % 1000);
    ms /= 1000;
    t.second = static_cast<std::uint16_t>(ms % 60);
    ms /= 60;
    t.minute = static_cast<std::uint16_t>(ms % 60);
    t.hour = static_cast<std::uint16_t>(ms / 60);
    return t;
}

} // namespace

std::optional<SystemTime> MoveByDays(const SystemTime& date, std::int64_t days)
{
    if (!IsCalendarDate(date) || days < -LastDay || days > LastDay)
        return std::nullopt;
    // The whole days of an overlong time of day are carried before the range check, so that the tick
    // count below never exceeds the last day's.
    const std::int64_t timeOfDay = TimeOfDayMilliseconds(date);
    const std::int64_t count = DayCount(date.year, date.month, date.day) + days + timeOfDay / MillisecondsPerDay;
    if (count < 0 || count > LastDay)
        return std::nullopt;
    return FromTicks(count * TicksPerDay + timeOfDay % MillisecondsPerDay * TicksPerMillisecond);
}

SystemTime AddDays(const SystemTime& date, std::int64_t days)
{
    return MoveByDays(date, days).value_or(date);
}

bool IsLaterDay(const SystemTime& a, const SystemTime& b)
{
    const auto dayOnly = [](SystemTime t) {
        t.hour = t.minute = t.second = 0;
        return ToTicks(t);
    };
    const auto later = dayOnly(a);
    const auto earlier = dayOnly(b);
    return later && earlier && *later > *earlier;
}

std::wstring FormatDayMonthYear(const SystemTime& date)
{
    return FormatText(L"%d/%d/%d", date.day, date.month, date.year);
}
