// SPDX-License-Identifier: GPL-3.0-or-later
#include "time/ClockSlotText.h"

#include "time/CityTime.h"

namespace {

ClockSlotText Format(ZoneOffset offset, DeviceOffset device, bool isHome, const SystemTime& now)
{
    return {FormatCityTime(offset, device, isHome, now), FormatCityDate(offset, device, isHome, now).text};
}

} // namespace

ClockSlotText FormatHomeSlot(const ClockSlot& home, const SystemTime& now)
{
    return Format(home.offset, SplitZoneOffset(home.offset), true, now);
}

ClockSlotText FormatCitySlot(const ClockSlot& slot, DeviceOffset device, const SystemTime& now)
{
    return Format(slot.offset, device, false, now);
}

bool IsDeviceMidnight(const ClockSlotText& home)
{
    return home.time == L"00:00:00";
}
