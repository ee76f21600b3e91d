// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "astro/TerminatorSun.h"

// The night test of one map point, split into a part that depends on the row only (how long the Sun
// stays above the horizon at that latitude) and one that depends on the column only (when it crosses
// the meridian), so that a whole map computes each once. Rising, transit and setting after Meeus,
// "Astronomical Algorithms", chapter 15.
struct HorizonArc
{
    enum class Kind {
        AlwaysNight, // the Sun stays below the horizon all day
        AlwaysDay, // it stays above all day
        Crossing, // it rises and sets
    };

    Kind kind = Kind::AlwaysDay;
    double halfDay = 0; // for Crossing: half the time above the horizon, as a fraction of a day
};

// The arc at map row `row` of a map `mapHeight` rows high; row 0 is the north edge.
[[nodiscard]] HorizonArc RowHorizonArc(const TerminatorSun& sun, int row, int mapHeight);

// The Sun's transit at map longitude `lonW` (degrees, west positive), as a fraction of a day in [0, 1].
[[nodiscard]] double TransitFraction(const TerminatorSun& sun, double lonW);

// True when a point with this transit and arc is in night at the Sun's time of day.
[[nodiscard]] bool IsNightAt(double transit, const HorizonArc& arc, double dayFraction);

// True when the map point at longitude `lonW` (degrees, west positive) and row `row` is in night.
[[nodiscard]] bool isNight(const TerminatorSun& sun, double lonW, int row, int mapHeight);
