// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "time/CityDaylight.h"
#include "time/SystemTime.h"
#include "time/ZoneOffset.h"

#include <cstdint>
#include <span>

// One clock's zone state, owned by the screen that shows the clock.
struct ClockSlot
{
    ZoneOffset offset = 0; // includes the shift while daylight saving is in effect
    std::int32_t observes = 0; // 1 when the city has a rule, whether or not it runs now
    SystemTime start {}; // this year's boundaries, set only when observes is 1
    SystemTime end {};

    friend bool operator==(const ClockSlot&, const ClockSlot&) = default;
};

// The offset device local time carries. With syncltz, from the standard bias alone (daylight bias
// ignored); otherwise from the home city's offset and its rule tested against device local time.
DeviceOffset ComputeDeviceOffset(
    bool syncltz, std::int32_t standardBias, const CityZoneTexts& home, const SystemTime& now);

// One clock for a city: its standard offset, plus the shift when the city's own date lies in its period.
ClockSlot ComputeCitySlot(const CityZoneTexts& city, DeviceOffset device, const SystemTime& now);

// Fills each slot from the city of the same index. Without syncltz the home slot (0) takes
// BiasZoneOffset of the standard bias instead of its city, so it keeps showing the device's own time.
void ComputeCityOffsets(std::span<ClockSlot> slots, std::span<const CityZoneTexts> cities, bool syncltz,
    std::int32_t standardBias, DeviceOffset device, const SystemTime& now);
