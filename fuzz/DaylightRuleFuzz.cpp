// SPDX-License-Identifier: GPL-3.0-or-later
// A city's time-zone and daylight-saving rule texts, as the catalogue or the object store hold them:
// "zone NUL rule NUL" then the device's clock (any date from 1601 to 30827) and offset. Every value the
// World Clocks, the city panel and the text commands compute from them is computed.
#include "FuzzInput.h"
#include "text/WideText.h"
#include "time/CityInformation.h"
#include "time/CityPanelValues.h"
#include "time/ClockOffsets.h"
#include "time/ClockSlotText.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzInput input(data, size);
    CityZoneTexts city;
    city.timeZoneText = Latin1ToWide(input.piece());
    city.daylightRuleText = Latin1ToWide(input.piece());
    SystemTime now;
    now.year = static_cast<std::uint16_t>(1601 + input.word() % (30827 - 1601 + 1));
    now.month = static_cast<std::uint16_t>(1 + input.byte() % 12);
    now.day = static_cast<std::uint16_t>(1 + input.byte() % 28);
    now.hour = static_cast<std::uint16_t>(input.byte() % 24);
    now.minute = static_cast<std::uint16_t>(input.byte() % 60);
    now.milliseconds = static_cast<std::uint16_t>(input.byte() % 2);
    const bool syncltz = input.byte() % 2;
    const auto bias = static_cast<std::int32_t>(input.word());

    const DeviceOffset device = ComputeDeviceOffset(syncltz, bias, city, now);
    const ClockSlot slot = ComputeCitySlot(city, device, now);
    FormatCitySlot(slot, device, now);
    FormatHomeSlot(slot, now);
    ComputeCityPanelValues(city, device, now);
    CityRecord record;
    record.timeZone = city.timeZoneText;
    record.daylightRule = city.daylightRuleText;
    CityInformationLines(record, device, now);
    return 0;
}
