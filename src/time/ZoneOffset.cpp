// SPDX-License-Identifier: GPL-3.0-or-later
#include "time/ZoneOffset.h"

namespace {

// 32-bit results wrap as on the handheld, so absurd catalogue values stay defined.
ZoneOffset Wrap32(std::int64_t value)
{
    return static_cast<ZoneOffset>(static_cast<std::uint32_t>(value));
}

} // namespace

OffsetParts SplitZoneOffset(ZoneOffset offset)
{
    if (!IsHhmmOffset(offset))
        return {offset, 0};
    return {offset / 100, offset % 100};
}

ZoneOffset AddDaylightShift(ZoneOffset offset, std::int32_t shiftHours)
{
    const std::int64_t shift = IsHhmmOffset(offset) ? std::int64_t {shiftHours} * 100 : shiftHours;
    return Wrap32(offset + shift);
}

ZoneOffset BiasZoneOffset(std::int32_t bias)
{
    const std::int64_t wide = bias;
    const std::int64_t rest = wide - (wide / -60) * -60;
    if (rest == 0)
        return Wrap32(wide / -60);
    return Wrap32(rest - (wide / 60) * 100);
}
