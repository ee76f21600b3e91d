// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// Where things fall on the equirectangular world map: longitude -180 at the left edge, east to the
// right, latitude 90 on row 0.
struct MapPoint
{
    int x = 0;
    int y = 0;

    friend bool operator==(const MapPoint&, const MapPoint&) = default;
};

// The map's height in a work area `workAreaHeight` high: (height - 25) × 4 / 7, in integers.
[[nodiscard]] int MapHeightFor(int workAreaHeight);

// The pixel of whole-degree `longitude` (east positive) and `latitude` (north positive), truncated.
[[nodiscard]] MapPoint MapPointOf(int longitude, int latitude, int mapWidth, int mapHeight);

// True when a marker's label goes to the left of point column `x`: in the map's second quarter
// (from a quarter up to the middle, both included) or from three quarters on.
[[nodiscard]] bool LabelOnLeft(int x, int mapWidth);
