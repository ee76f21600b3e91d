// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The day/night boundary's angle arithmetic: degrees and radians converted through pi taken as 3.14, and
// angles or day fractions brought back into one turn.
namespace TerminatorAngles {

inline constexpr double DegToRad = 0.017444444444444446; // 3.14 / 180
inline constexpr double RadToDeg = 57.324840764331206; // 180 / 3.14

// `value` moved by whole periods into [0, period], both ends included; a value already there is kept.
[[nodiscard]] constexpr double wrap(double value, double period)
{
    while (value > period)
        value -= period;
    while (value < 0)
        value += period;
    return value;
}

} // namespace TerminatorAngles
