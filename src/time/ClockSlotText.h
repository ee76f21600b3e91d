// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "time/ClockOffsets.h"
#include "time/SystemTime.h"
#include "time/ZoneOffset.h"

#include <string>

// The time and date texts of one World Clocks slot, 24-hour; the screen and the text commands share them.
struct ClockSlotText
{
    std::wstring time;
    std::wstring date;
};

// The home clock: the slot's own offset serves as device offset, so it shows the device's time and date,
// with seconds and year.
ClockSlotText FormatHomeSlot(const ClockSlot& home, const SystemTime& now);

// Any other clock: the city's time from device time and the device offset, without seconds or year.
ClockSlotText FormatCitySlot(const ClockSlot& slot, DeviceOffset device, const SystemTime& now);

// True when the home clock reads "00:00:00", the tick on which the dates change.
bool IsDeviceMidnight(const ClockSlotText& home);
