// SPDX-License-Identifier: GPL-3.0-or-later
#include "astro/HorizonArc.h"

#include "astro/TerminatorAngles.h"

#include <cmath>

namespace {

using TerminatorAngles::DegToRad;
using TerminatorAngles::RadToDeg;
using TerminatorAngles::wrap;

constexpr double PerTurn = 0.002777777777777778; // 1 / 360
constexpr double HorizonAltitude = -0.8333333333333334; // degrees: refraction and the Sun's radius

} // namespace

HorizonArc RowHorizonArc(const TerminatorSun& sun, int row, int mapHeight)
{
    const double latitude = 90 - row * 180.0 / mapHeight; // degrees
    const double cosH0
        = (std::sin(HorizonAltitude * DegToRad) - std::sin(sun.declination) * std::sin(latitude * DegToRad))
        / (std::cos(sun.declination) * std::cos(latitude * DegToRad));
    if (cosH0 > 1)
        return {HorizonArc::Kind::AlwaysNight, 0};
    if (cosH0 < -1)
        return {HorizonArc::Kind::AlwaysDay, 0};
    const double h0 = std::acos(cosH0) * RadToDeg; // degrees
    return {HorizonArc::Kind::Crossing, h0 * PerTurn};
}

double TransitFraction(const TerminatorSun& sun, double lonW)
{
    return wrap((lonW + sun.rightAscension - sun.siderealAngle) * PerTurn, 1);
}

bool IsNightAt(double transit, const HorizonArc& arc, double dayFraction)
{
    if (arc.kind != HorizonArc::Kind::Crossing)
        return arc.kind == HorizonArc::Kind::AlwaysNight;
    const double rise = wrap(transit - arc.halfDay, 1);
    const double set = wrap(transit + arc.halfDay, 1);
    if (rise < set)
        return dayFraction < rise || dayFraction > set;
    if (rise > set)
        return set < dayFraction && dayFraction < rise;
    return false;
}

bool isNight(const TerminatorSun& sun, double lonW, int row, int mapHeight)
{
    return IsNightAt(TransitFraction(sun, lonW), RowHorizonArc(sun, row, mapHeight), sun.dayFraction);
}
