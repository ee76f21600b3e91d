// SPDX-License-Identifier: GPL-3.0-or-later
#include "session/HomeCity.h"

#include "device/DeviceClock.h"
#include "settings/RegistrySettings.h"
#include "settings/SettingsTable.h"
#include "store/CityCatalogue.h"
#include "time/ClockOffsets.h"

std::uint32_t HomeCity::position(RegistrySettings& settings)
{
    const std::uint32_t home = settings.GetDWORD(Settings::HomeClock.subkey, Settings::HomeClock.name);
    return settings.Status() == RegistrySettings::Read ? home : 0;
}

DeviceOffset HomeCity::deviceOffset(CityCatalogue& cities, std::uint32_t home, const DeviceClock& clock)
{
    return deviceOffset(cities, home, clock, clock.localTime());
}

DeviceOffset HomeCity::deviceOffset(
    CityCatalogue& cities, std::uint32_t home, const DeviceClock& clock, const SystemTime& now)
{
    const CityRecord city = cities.Record(home);
    return ComputeDeviceOffset(false, clock.standardBias(), {city.timeZone, city.daylightRule}, now);
}
