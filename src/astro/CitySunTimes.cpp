// SPDX-License-Identifier: GPL-3.0-or-later
#include "astro/CitySunTimes.h"

#include "text/WideText.h"
#include "time/ClockOffsets.h"

CitySunTimes ComputeCitySunTimes(const CityRecord& city, DeviceOffset device, const SystemTime& now)
{
    const ClockSlot slot = ComputeCitySlot({city.timeZone, city.daylightRule}, device, now);
    CitySunTimes result;
    result.utcHours = SunOffsetHours(slot.offset);
    result.times = computeSunTimes(
        now.day, now.month, now.year, Wtol(city.coordinate2), Wtol(city.coordinate1), result.utcHours);
    return result;
}
