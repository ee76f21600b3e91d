// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "time/CityDaylight.h"
#include "time/SystemTime.h"
#include "time/ZoneOffset.h"

#include <string>

// The daylight-saving and time-zone values of the city information panel.
struct CityPanelValues
{
    std::wstring status; // "Observing Now", "Not observing now" or "Never observing"
    std::wstring period; // "start day/month/year-end day/month/year", or "-" for a city that never observes
    std::wstring timeZone; // "5h30", "-3h30", "1h", with " + 1h (DST)" while observing now
};

// Values for a city at device local time `now`. `device` is the World Clocks device offset, taken from
// the home city with synchronisation off: ComputeDeviceOffset(false, bias, home, now).
CityPanelValues ComputeCityPanelValues(const CityZoneTexts& city, DeviceOffset device, const SystemTime& now);
