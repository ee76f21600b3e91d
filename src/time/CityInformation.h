// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "time/CityRecord.h"
#include "time/SystemTime.h"
#include "time/ZoneOffset.h"

#include <array>
#include <string>

// The six lines of the city information panel ("City", "Country", "Long/Lat", "Daylight Saving",
// "DST start/end", "Time zone (GMT)"), each "label: value", at device local time `now` with the World
// Clocks device offset.
std::array<std::wstring, 6> CityInformationLines(const CityRecord& city, DeviceOffset device, const SystemTime& now);
