// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "time/DaylightRule.h"
#include "time/SystemTime.h"
#include "time/ZoneOffset.h"

#include <string>

// The two catalogue texts of a city that the clocks read: its standard offset and its daylight-saving rule.
struct CityZoneTexts
{
    std::wstring timeZoneText;
    std::wstring daylightRuleText;
};

// A city's standard offset, rule and this year's boundaries, and whether daylight saving is in effect.
struct CityDaylight
{
    ZoneOffset standardOffset = 0;
    DaylightRule rule;
    DaylightPeriod period; // left empty for a city that never observes
    bool inEffect = false;

    // The standard offset plus the shift while daylight saving is in effect.
    ZoneOffset effectiveOffset() const;
};

// For the home city: device local time is taken to be its local time, so `deviceNow` is tested as it is.
CityDaylight EvaluateHomeDaylight(const CityZoneTexts& home, const SystemTime& deviceNow);

// For any other city: the boundaries are those of the device's year, tested against the city's own date
// (CityNow with its standard offset).
CityDaylight EvaluateCityDaylight(const CityZoneTexts& city, DeviceOffset device, const SystemTime& deviceNow);
