// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "time/SystemTime.h"
#include "time/ZoneOffset.h"

#include <cstdint>

class CityCatalogue;
class DeviceClock;
class RegistrySettings;

// The World Clocks home city and the offset device local time carries with it.
namespace HomeCity {

// The catalogue position in "clock", or 0 when it cannot be read.
std::uint32_t position(RegistrySettings& settings);
// The device offset as the World Clocks screen computes it: from `home`, synchronisation off.
DeviceOffset deviceOffset(CityCatalogue& cities, std::uint32_t home, const DeviceClock& clock);
// The same at device local time `now`, as the screens would compute it on another date.
DeviceOffset deviceOffset(CityCatalogue& cities, std::uint32_t home, const DeviceClock& clock, const SystemTime& now);

} // namespace HomeCity
