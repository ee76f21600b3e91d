// SPDX-License-Identifier: GPL-3.0-or-later
#include "astro/MapPoint.h"

#include <algorithm>

namespace {

constexpr int Margin = 0; // the map fills the client width
constexpr double PerTurn = 0.002777777777777778; // 1 / 360
constexpr double PerHalfTurn = 0.005555555555555556; // 1 / 180
// A coordinate no city has (a hand-edited catalogue's) lands this far off the map at the most, so
// that the conversion to int and the label's sums stay in range.
constexpr double FarOff = 1e6;

int pixel(double at)
{
    return static_cast<int>(std::clamp(at, -FarOff, FarOff));
}

} // namespace

int MapHeightFor(int workAreaHeight)
{
    return (workAreaHeight - 25) * 4 / 7;
}

MapPoint MapPointOf(int longitude, int latitude, int mapWidth, int mapHeight)
{
    // The products in double: whole numbers below 2^53, exactly the integer products for real cities.
    return {pixel(double(longitude) * mapWidth * PerTurn + Margin + mapWidth / 2),
        pixel(mapHeight / 2 - double(latitude) * mapHeight * PerHalfTurn)};
}

bool LabelOnLeft(int x, int mapWidth)
{
    return (x >= mapWidth / 4 && x <= mapWidth / 2) || x >= mapWidth * 3 / 4;
}
