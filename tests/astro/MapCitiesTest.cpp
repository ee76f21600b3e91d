// SPDX-License-Identifier: GPL-3.0-or-later
#include "astro/MapCities.h"

#include "settings/SettingsTable.h"

#include <gtest/gtest.h>

#include <tuple>

TEST(MapCities, SteppingWrapsAndStoredSelectionsOutsideShowTheFirstCity)
{
    // Left from the first city selects the last, right from the last the first.
    const std::tuple<std::int32_t, int, std::int32_t> steps[]
        = {{0, -1, 1089}, {1089, 1, 0}, {5, -1, 4}, {5, 1, 6}, {7, 0, 7}};
    for (const auto& [selected, delta, next] : steps)
        EXPECT_EQ(MapCities::steppedSelection(selected, delta, 1090), next) << selected << ' ' << delta;
    const std::pair<std::int32_t, std::int32_t> stored[] = {{0, 0}, {1089, 1089}, {1090, 0}, {-1, 0}, {INT32_MIN, 0}};
    for (const auto& [position, shown] : stored)
        EXPECT_EQ(MapCities::validSelection(position, 1090), shown) << position;

    // "mapclock" is a DWORD: 0xFFFFFFFF reads back as -1.
    auto hive = SettingsHive::openInMemory();
    RegistrySettings settings(*hive);
    EXPECT_EQ(MapCities::storedSelection(settings), 0); // missing
    WriteSetting(settings, Settings::MapClock, 0xFFFFFFFFu);
    EXPECT_EQ(MapCities::storedSelection(settings), -1);
}

TEST(MapCities, MarkedCitiesAndTheirDefaults)
{
    const std::array<std::uint32_t, 5> defaults {0, 684, 756, 565, 988};
    const std::array<const DwordSetting*, 5> rows {
        &Settings::HomeClock, &Settings::Clock1, &Settings::Clock2, &Settings::Clock3, &Settings::Clock4};
    for (const bool writeBack : {true, false}) {
        auto hive = SettingsHive::openInMemory();
        RegistrySettings settings(*hive);
        // The key exists (with another value) and "clock2" is stored: the rest are missing values.
        settings.SetDWORD(Settings::WorldClockKey, L"syncltz", 0);
        WriteSetting(settings, Settings::Clock2, 17);
        std::array<std::uint32_t, 5> expected = defaults;
        expected[2] = 17;
        EXPECT_EQ(MapCities::markedPositions(settings, writeBack), expected);
        for (std::size_t i = 0; i < rows.size(); ++i) {
            const std::uint32_t stored = settings.GetDWORD(rows[i]->subkey, rows[i]->name);
            const bool present = settings.Status() == RegistrySettings::Read;
            EXPECT_EQ(present, writeBack || i == 2) << i;
            EXPECT_EQ(stored, present ? expected[i] : 0) << i;
        }
    }
}
