// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "time/SystemTime.h"

#include <cstdint>
#include <string>
#include <string_view>

// A city's daylight-saving rule, read from its catalogue text "shift:start day:start hour:end day:end hour".
// Days are 1-based days of the year; the hours only set the time of day of the boundary dates.
struct DaylightRule
{
    std::wstring shiftText; // the shift field as written, shown in the city panel
    std::int32_t shift = 0; // whole hours
    std::int32_t startDay = 0;
    std::int32_t startHour = 0;
    std::int32_t endDay = 0;
    std::int32_t endHour = 0;

    // A shift field of exactly "0" means the city never observes daylight saving.
    bool observes() const { return shiftText != L"0"; }

    friend bool operator==(const DaylightRule&, const DaylightRule&) = default;
};

// This year's daylight-saving boundaries: the start day counts as inside, the end day as outside.
struct DaylightPeriod
{
    SystemTime start;
    SystemTime end;
    // False when a boundary falls outside the dates the calendar supports (1601 to 30827), as a hostile
    // day or hour number makes it: such a rule never applies, and both boundaries read 1 January.
    bool applies = true;

    friend bool operator==(const DaylightPeriod&, const DaylightPeriod&) = default;
};

// Each field runs to the next ":" or to the end of the text and is converted like _wtol; a missing field
// reads as 0. Nothing past the shift field is read when the city never observes.
DaylightRule ParseDaylightRule(std::wstring_view text);

// The boundaries in the given year: 1 January at the boundary hour, moved on by (day - 1) days. The hour
// is kept in 16 bits, as the handheld's date fields were; hours past 23 carry into the following days.
// An end whose month comes before the start's month gets next year's year number, keeping the day and
// month counted in this year (southern rules).
DaylightPeriod DaylightPeriodOf(const DaylightRule& rule, int year);

// True unless the start's day is later than now's or now's day is later than the end's, comparing
// days with their milliseconds: now on the end day is outside, except at exactly 0 ms. Never true for a
// period that does not apply.
bool IsInDaylightPeriod(const DaylightPeriod& period, const SystemTime& now);
