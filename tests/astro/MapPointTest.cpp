// SPDX-License-Identifier: GPL-3.0-or-later
#include "astro/MapPoint.h"

#include <gtest/gtest.h>

#include <tuple>

TEST(MapPoint, MapHeightAndPointsOfWholeDegrees)
{
    // (268 - 25) x 4 / 7 = 972 / 7 = 138.9, truncated; rotated, (240 - 25) x 4 / 7 = 122.9.
    const std::pair<int, int> cases[] = {{268, 138}, {240, 122}, {25, 0}, {31, 3}};
    for (const auto& [workArea, map] : cases)
        EXPECT_EQ(MapHeightFor(workArea), map) << workArea;

    // Longitude, latitude, map width and height, the point.
    const std::tuple<int, int, int, int, MapPoint> points[] = {
        {0, 0, 240, 138, {120, 69}}, // the middle column and row
        {0, 90, 240, 138, {120, 0}}, // 69 - 90 x 138 / 180 = 69 - 69.000000000000014, truncated to 0
        {0, -90, 240, 138, {120, 138}}, // one row below the map
        {-180, 0, 240, 138, {0, 69}}, {180, 0, 240, 138, {240, 69}}, // one column past the right edge
        {-1, 1, 240, 138, {119, 68}}, // 120 - 0.67 and 69 - 0.77, truncated
        {0, 0, 241, 139, {120, 69}}, // odd sizes halve as integers
        {2, 48, 1920, 1080, {970, 252}}, // Paris: 960 + 10.67, 540 - 288
    };
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
    EXPECT_TRUE(LabelOnLeft(60, 241));
    EXPECT_FALSE(LabelOnLeft(179, 241));
}
