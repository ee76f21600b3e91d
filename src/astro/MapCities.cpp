// SPDX-License-Identifier: GPL-3.0-or-later
#include "astro/MapCities.h"

#include "settings/SettingsTable.h"

std::array<std::uint32_t, MapCities::MarkerCount> MapCities::markedPositions(RegistrySettings& settings, bool writeBack)
{
    static_assert(Settings::ClockCities.size() == MarkerCount);
    std::array<std::uint32_t, MarkerCount> positions {};
    for (std::size_t i = 0; i < MarkerCount; ++i) {
        DwordSetting row = *Settings::ClockCities[i];
        row.writeBack = writeBack ? WriteBack::WhenMissing : WriteBack::Never;
        positions[i] = ReadSetting(settings, row);
    }
    return positions;
}

std::int32_t MapCities::storedSelection(RegistrySettings& settings)
{
    return static_cast<std::int32_t>(ReadSetting(settings, Settings::MapClock));
}

std::int32_t MapCities::validSelection(std::int32_t stored, std::uint32_t cityCount)
{
    return stored < 0 || static_cast<std::uint32_t>(stored) >= cityCount ? 0 : stored;
}

std::int32_t MapCities::steppedSelection(std::int32_t selected, int delta, std::uint32_t cityCount)
{
    const auto last = static_cast<std::int32_t>(cityCount) - 1;
    if (delta < 0)
        return selected <= 0 ? last : selected - 1;
    if (delta > 0)
        return selected >= last ? 0 : selected + 1;
    return selected;
}
