// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// Geometry of an analog dial's hands. Positions are in sixtieths of a turn: 0 is twelve o'clock,
// 15 three o'clock, and angles grow clockwise on screen (y grows downwards).

struct DialPoint
{
    int x = 0;
    int y = 0;

    friend bool operator==(const DialPoint&, const DialPoint&) = default;
};

// Radians from three o'clock: (position - 15) × 3.14159 / 30, the short value of pi kept as the dials use it.
double HandAngle(double position);

// The tip of a hand of lengthFactor × the half-size of the box (left, top, right, bottom) around the centre.
// The half-sizes are halved as integers; each coordinate adds 0.5 and truncates toward zero, so points left
// of or above the centre land one pixel nearer to it than their mirror images.
DialPoint HandPoint(
    double position, double lengthFactor, int centreX, int centreY, int left, int top, int right, int bottom);
