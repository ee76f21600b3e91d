// SPDX-License-Identifier: GPL-3.0-or-later
#include "time/ClockOffsets.h"

DeviceOffset ComputeDeviceOffset(
    bool syncltz, std::int32_t standardBias, const CityZoneTexts& home, const SystemTime& now)
{
    if (!syncltz)
        return SplitZoneOffset(EvaluateHomeDaylight(home, now).effectiveOffset());
    // GMT = local + bias, so the offset is the bias negated; the minutes keep the bias's sign.
    const std::int32_t hours = standardBias / -60;
    return {hours, static_cast<std::int32_t>(standardBias - std::int64_t {hours} * -60)};
}

ClockSlot ComputeCitySlot(const CityZoneTexts& city, DeviceOffset device, const SystemTime& now)
{
    const CityDaylight daylight = EvaluateCityDaylight(city, device, now);
    ClockSlot slot;
    slot.offset = daylight.effectiveOffset();
    if (daylight.rule.observes()) {
        slot.observes = 1;
        slot.start = daylight.period.start;
        slot.end = daylight.period.end;
    }
    return slot;
}

void ComputeCityOffsets(std::span<ClockSlot> slots, std::span<const CityZoneTexts> cities, bool syncltz,
    std::int32_t standardBias, DeviceOffset device, const SystemTime& now)
{
    for (std::size_t i = 0; i < slots.size(); ++i) {
        if (i == 0 && !syncltz)
            slots[i] = ClockSlot {BiasZoneOffset(standardBias)};
        else if (i < cities.size())
            slots[i] = ComputeCitySlot(cities[i], device, now);
    }
}
