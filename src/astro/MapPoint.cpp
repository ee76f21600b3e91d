// SPDX-License-Identifier: GPL-3.0-or-later
#include "astro/MapPoint.h"

namespace {

constexpr int Margin = 0; // the map fills the client width
constexpr double PerTurn = 0.002777777777777778; // 1 / 360
constexpr double PerHalfTurn = 0.005555555555555556; // 1 / 180

} // namespace

int MapHeightFor(int workAreaHeight)
{
    return (workAreaHeight - 25) * 4 / 7;
}

MapPoint MapPointOf(int longitude, int latitude, int mapWidth, int mapHeight)
{
    return {static_cast<int>(longitude * mapWidth * PerTurn + Margin + mapWidth / 2),
        static_cast<int>(mapHeight / 2 - latitude * mapHeight * PerHalfTurn)};
}

bool LabelOnLeft(int x, int mapWidth)
{
    return (x >= mapWidth / 4 && x <= mapWidth / 2) || x >= mapWidth * 3 / 4;
}
