// SPDX-License-Identifier: GPL-3.0-or-later
#include "astro/HorizonArc.h"

#include <gtest/gtest.h>

#include <tuple>

namespace {

TerminatorSun sunAt(int month, int day, int hour)
{
    return computeSunForTerminator(
        {2026, std::uint16_t(month), 0, std::uint16_t(day), std::uint16_t(hour), 0, 0, 0}, {0, 0});
}

} // namespace

TEST(HorizonArc, NoonAtGreenwichNearTheEquinox)
{
    // 20 March 2026, 12:00 UTC: the Sun stands over longitude 0, so the middle of the map is in day and the
    // antimeridian in night at every latitude short of the poles; 60 degrees either side of noon is well
    // inside the day, 120 well inside the night.
    const TerminatorSun sun = sunAt(3, 20, 12);
    for (const int row : {10, 40, 69, 100, 128}) {
        for (const double lonW : {0.0, 60.0, -60.0})
            EXPECT_FALSE(isNight(sun, lonW, row, 138)) << row << ' ' << lonW;
        for (const double lonW : {180.0, -180.0, 120.0, -120.0})
            EXPECT_TRUE(isNight(sun, lonW, row, 138)) << row << ' ' << lonW;
    }
}

TEST(HorizonArc, PolarDayAndPolarNight)
{
    using Kind = HorizonArc::Kind;
    // Near the solstices the summer pole has the Sun all day and the winter pole none; at the equinox both
    // poles see it, since the horizon lies 0.83 degrees below the true one. Month, north pole, south pole.
    const std::tuple<int, Kind, Kind> cases[] = {{6, Kind::AlwaysDay, Kind::AlwaysNight},
        {12, Kind::AlwaysNight, Kind::AlwaysDay}, {3, Kind::AlwaysDay, Kind::AlwaysDay}};
    for (const auto& [month, north, south] : cases) {
        const TerminatorSun sun = sunAt(month, 21, 12);
        EXPECT_EQ(RowHorizonArc(sun, 0, 138).kind, north) << month;
        EXPECT_EQ(RowHorizonArc(sun, 138, 138).kind, south) << month;
        EXPECT_EQ(RowHorizonArc(sun, 69, 138).kind, Kind::Crossing) << month;
        for (const double lonW : {-150.0, -30.0, 45.0, 170.0}) {
            EXPECT_EQ(isNight(sun, lonW, 0, 138), north == Kind::AlwaysNight);
            EXPECT_EQ(isNight(sun, lonW, 138, 138), south == Kind::AlwaysNight);
        }
    }

    // On the equator at the equinox cos H0 = sin(-0.8333 x 3.14/180) / cos(dec) = -0.014544, so
    // H0 = acos(-0.014544) x 180/3.14 = 90.88 degrees: the day is a little longer than half.
    const HorizonArc arc = RowHorizonArc(sunAt(3, 20, 12), 69, 138);
    ASSERT_EQ(arc.kind, HorizonArc::Kind::Crossing);
    EXPECT_NEAR(arc.halfDay, 90.88 / 360, 0.00005);
}

TEST(HorizonArc, TransitWrapsIntoOneDay)
{
    // At J2000.0 the right ascension is 281.080684 and the sidereal angle 100.46061837; the transit at
    // lonW is (lonW + 180.620066) / 360 wrapped into [0, 1].
    const TerminatorSun sun = computeSunForTerminator({2000, 1, 0, 1, 12, 0, 0, 0}, {0, 0});
    const std::pair<double, double> cases[] = {{0, 0.501722405}, {-180, 0.001722405}, {179.0, 0.998944627}};
    for (const auto& [lonW, transit] : cases)
        EXPECT_NEAR(TransitFraction(sun, lonW), transit, 1e-8) << lonW;
}
