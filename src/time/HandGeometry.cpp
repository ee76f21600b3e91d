// SPDX-License-Identifier: GPL-3.0-or-later
#include "time/HandGeometry.h"

#include <cmath>

namespace {

// 3.14159 / 30 as the dials have always used it; not recomputed from a full-precision pi.
constexpr double RadiansPerPosition = 0.10471966666666666;

} // namespace

double HandAngle(double position)
{
    return (position - 15.0) * RadiansPerPosition;
}

DialPoint HandPoint(
    double position, double lengthFactor, int centreX, int centreY, int left, int top, int right, int bottom)
{
    const double angle = HandAngle(position);
    const int halfWidth = (right - left) / 2;
    const int halfHeight = (bottom - top) / 2;
    return {centreX + static_cast<int>(std::cos(angle) * halfWidth * lengthFactor + 0.5),
        centreY + static_cast<int>(std::sin(angle) * halfHeight * lengthFactor + 0.5)};
}
