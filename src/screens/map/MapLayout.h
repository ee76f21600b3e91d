// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRect>

// Where the World Map screen puts things in a work area: the map on top, then the clock row with the
// arrows, the city name, the city's time, its coordinates and its sunrise and sunset.
struct MapLayout
{
    int mapHeight = 0; // (height - 25) × 4 / 7
    QRect map;
    QRect clock; // the device time between the two arrows, arrows included
    QRect name;
    QRect cityTime;
    QRect coordinates;
    QRect sun;

    static MapLayout of(int width, int height);
    // Everything that shows the selected city.
    QRect cityArea() const { return name | cityTime | coordinates | sun; }
};
