// SPDX-License-Identifier: GPL-3.0-or-later
#include "astro/MapPoint.h"

#include "astro/MapCities.h"
#include "settings/SettingsTable.h"

#include <gtest/gtest.h>

#include <tuple>

TEST(MapPoint, MapHeightAndPointsOfWholeDegrees)
{
    // (268 - 25) x 4 / 7 = 972 / 7 = 138.9, truncated; rotated, (240 - 25) x 4 / 7 = 122.9.
    const std::pair<int, int> cases[] = {{268, 138}, {240, 122}, {25, 0}, {31, 3}};
    for (const auto& [workArea, map] : cases)
        EXPECT_EQ(MapHeightFor(workArea), map) << workArea;

    // Longitude, latitude, map width and height, the point. The middle column and row; at 90 N,
    // 69 - 90 x 138 / 180 = 69 - 69.000000000000014, truncated to 0; at 90 S one row below the map and at
    // 180 E one column past its right edge; odd sizes halve as integers; Paris, 960 + 10.67 and 540 - 288.
    const std::tuple<int, int, int, int, MapPoint> points[] = {{0, 0, 240, 138, {120, 69}}, {0, 90, 240, 138, {120, 0}},
        {0, -90, 240, 138, {120, 138}}, {-180, 0, 240, 138, {0, 69}}, {180, 0, 240, 138, {240, 69}},
        {0, 0, 241, 139, {120, 69}}, {2, 48, 1920, 1080, {970, 252}}};
    for (const auto& [longitude, latitude, width, height, point] : points)
        EXPECT_EQ(MapPointOf(longitude, latitude, width, height), point) << longitude << ',' << latitude;
}

TEST(MapPoint, LabelSideByQuarter)
{
    // Left in the second quarter, 60 to 120 of 240 both included, and from 180 on; right elsewhere.
    const std::pair<int, bool> cases[] = {{0, false}, {59, false}, {60, true}, {120, true}, {121, false}, {179, false},
        {180, true}, {239, true}, {240, true}, {-5, false}};
    for (const auto& [x, left] : cases)
        EXPECT_EQ(LabelOnLeft(x, 240), left) << x;
    // 241 / 4 = 60 and 241 x 3 / 4 = 180 in integers.
    EXPECT_TRUE(LabelOnLeft(60, 241) && !LabelOnLeft(179, 241));
}

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
    // The key exists (with another value) and "clock2" is stored as 17: the rest are missing values, read as
    // their defaults 0, 684, 565 and 988.
    const std::array<std::uint32_t, 5> expected {0, 684, 17, 565, 988};
    for (const bool writeBack : {true, false}) {
        auto hive = SettingsHive::openInMemory();
        RegistrySettings settings(*hive);
        settings.SetDWORD(Settings::WorldClockKey, L"syncltz", 0);
        WriteSetting(settings, Settings::Clock2, 17);
        EXPECT_EQ(MapCities::markedPositions(settings, writeBack), expected);
        for (std::size_t i = 0; i < expected.size(); ++i) {
            const DwordSetting& row = *Settings::ClockCities[i];
            const std::uint32_t stored = settings.GetDWORD(row.subkey, row.name);
            const bool present = settings.Status() == RegistrySettings::Read;
            EXPECT_EQ(present, writeBack || i == 2) << i;
            EXPECT_EQ(stored, present ? expected[i] : 0) << i;
        }
    }
}
