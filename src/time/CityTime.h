// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "time/SystemTime.h"
#include "time/ZoneOffset.h"

#include <string>

// A city's local time and date texts, derived from device local time: back to GMT with the device
// offset, then forward with the city's offset. All divisions truncate toward zero.

// The city's date as shown, and the device local date-time moved to that day.
struct CityDate
{
    std::wstring text;
    SystemTime date;
};

// "HH:MM" (hour and minutes zero-padded below 10), with ":SS" appended when withSeconds is set.
// Always 24-hour; the hour wraps by 24 once only, so offsets beyond a day are not normalised.
std::wstring FormatCityTime(ZoneOffset cityOffset, DeviceOffset device, bool withSeconds, const SystemTime& now);

// "day/month/year weekday" or "day/month weekday". The date moves by at most one day, and its minute
// carry counts a minute sum of exactly 0 as a step back, unlike FormatCityTime: at that minute the
// two disagree by a day. Monday's label is the string shared with "Done".
CityDate FormatCityDate(ZoneOffset cityOffset, DeviceOffset device, bool withYear, const SystemTime& now);

// The city's current date-time for daylight-saving tests: the date of FormatCityDate and the hour of
// FormatCityTime's first two characters; minutes, seconds and milliseconds stay the device's.
SystemTime CityNow(ZoneOffset cityOffset, DeviceOffset device, const SystemTime& now);
