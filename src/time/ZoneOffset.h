// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

// An offset from GMT as the city catalogue writes it: a magnitude of at most 100 is whole hours
// (5 is +5 h), anything beyond is hours × 100 + minutes with the minutes taking the sign (-330 is -3 h 30 min).
using ZoneOffset = std::int32_t;

// An offset split into hours and minutes; both carry the sign of the whole.
struct OffsetParts
{
    std::int32_t hours = 0;
    std::int32_t minutes = 0;

    friend bool operator==(const OffsetParts&, const OffsetParts&) = default;
};

// The offset device local time is taken to carry; subtracting it from device time gives GMT.
using DeviceOffset = OffsetParts;

// True for the hours × 100 + minutes form: 100 and -100 are still plain hours.
constexpr bool IsHhmmOffset(ZoneOffset offset)
{
    return offset > 100 || offset < -100;
}

// Hours and minutes by truncating division, so -330 gives (-3, -30); plain hours give (value, 0).
OffsetParts SplitZoneOffset(ZoneOffset offset);

// The offset with a daylight-saving shift of whole hours added: ×100 in the hhmm form (530 + 1 gives 630).
ZoneOffset AddDaylightShift(ZoneOffset offset, std::int32_t shiftHours);

// The home clock's starting offset from the device's standard bias (GMT = local + bias, in minutes).
// The mixed sign handling gives 470 for a bias of -330 and -270 for +210; the clock relies on it.
ZoneOffset BiasZoneOffset(std::int32_t bias);
