// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "astro/SunTimes.h"
#include "time/CityRecord.h"
#include "time/SystemTime.h"

// A catalogue city's sunrise, sunset and day length as the map shows them, with the offset used.
struct CitySunTimes
{
    SunTimes times;
    std::int32_t utcHours = 0; // the city's offset now, daylight saving included, in whole hours
};

// On the device's date `now`, for `city` at its whole-degree coordinates (longitude before the ":",
// latitude after it) and its offset with daylight saving as the clocks compute it.
[[nodiscard]] CitySunTimes ComputeCitySunTimes(const CityRecord& city, DeviceOffset device, const SystemTime& now);
