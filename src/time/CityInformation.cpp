// SPDX-License-Identifier: GPL-3.0-or-later
#include "time/CityInformation.h"

#include "text/StringTable.h"
#include "time/CityPanelValues.h"

std::array<std::wstring, 6> CityInformationLines(const CityRecord& city, DeviceOffset device, const SystemTime& now)
{
    const CityPanelValues values = ComputeCityPanelValues({city.timeZone, city.daylightRule}, device, now);
    const std::array<std::wstring, 6> shown {city.name, city.country, city.coordinate1 + L"/" + city.coordinate2,
        values.status, values.period, values.timeZone};
    constexpr std::array<int, 6> labels {40022, 40023, 40024, 40026, 40030, 40031};
    std::array<std::wstring, 6> lines;
    for (std::size_t i = 0; i < lines.size(); ++i)
        lines[i] = std::wstring(StringTable::Load(labels[i])) + L": " + shown[i];
    return lines;
}
