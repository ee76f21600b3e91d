// SPDX-License-Identifier: GPL-3.0-or-later
#include "time/HandGeometry.h"

#include <gtest/gtest.h>

#include <numbers>
#include <tuple>

TEST(HandGeometry, ShortPiIntegerHalvingAndTruncationTowardZero)
{
    EXPECT_EQ(HandAngle(15), 0.0);
    EXPECT_DOUBLE_EQ(HandAngle(45), 3.14159);
    EXPECT_DOUBLE_EQ(HandAngle(0), -1.570795);
    EXPECT_GT(std::numbers::pi - HandAngle(45), 2e-6);

    // A box 101 wide and high around (50, 50): the half-size is 50, not 50.5. Left and up land one pixel
    // short of the mirror images of right and down.
    const std::tuple<double, double, DialPoint> cases[] = {{15, 1.0, {100, 50}}, {30, 1.0, {50, 100}},
        {45, 1.0, {1, 50}}, {0, 1.0, {50, 1}}, {7.5, 1.0, {85, 16}}, {52.5, 0.6, {30, 30}}, {37.5, 0.6, {30, 71}}};
    for (const auto& [position, length, point] : cases)
        EXPECT_EQ(HandPoint(position, length, 50, 50, 0, 0, 101, 101), point) << position;
}
