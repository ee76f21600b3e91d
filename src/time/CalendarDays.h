// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "time/SystemTime.h"

#include <cstdint>
#include <optional>
#include <string>

// The last year of the supported dates (the first is 1601).
inline constexpr int LastCalendarYear = 30827;

// Whole-day calendar arithmetic on SystemTime, done as the handheld did it: through a 64-bit count of
// 100-ns units since 1 January 1601. Dates are valid from 1601 to 30827; the time of day may run past
// its usual range and is then carried into the following days.

// The date-time moved by whole days, time of day kept (an hour past 23 carried into the following days),
// day of week recomputed. Nothing when the date is not a calendar date or the result falls outside 1601
// to 30827.
std::optional<SystemTime> MoveByDays(const SystemTime& date, std::int64_t days);

// MoveByDays, leaving the date unchanged where it gives nothing.
SystemTime AddDays(const SystemTime& date, std::int64_t days);

// True when a's day is strictly later than b's. Hour, minute and second are cleared first but the
// milliseconds are kept, so on the same day a reading with milliseconds is later than one without.
// False when either is not a calendar date.
bool IsLaterDay(const SystemTime& a, const SystemTime& b);

// "day/month/year", as the daylight-saving boundaries are shown.
std::wstring FormatDayMonthYear(const SystemTime& date);
