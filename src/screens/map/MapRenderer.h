// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "astro/TerminatorColumns.h"

#include <QColor>
#include <QFont>
#include <QImage>
#include <QString>

#include <vector>

class QPainter;

// Draws the World Map: the day picture stretched over the map, the night side darkened, the World
// Clocks cities marked. The map screen and `wanderkit map` both draw with it; it needs only QtGui.
namespace MapRenderer {

// AND-ing this colour keeps only a pixel's blue channel.
inline const QColor NightMask {0, 0, 255};
inline const QColor MarkerColour {213, 254, 48};
inline const QColor SelectedColour {255, 255, 255};

// A city to mark: its name and whole-degree coordinates.
struct Marker
{
    QString name;
    int longitude = 0;
    int latitude = 0;
    bool selected = false; // drawn in the selected city's colour
};

// How a picture is stretched onto the map: a plain pixel copy, or smoothed for large maps.
enum class Stretch {
    Plain,
    Smooth,
};

// A map of `size` holding `day` (not null) stretched over it, night not yet darkened.
[[nodiscard]] QImage dayMap(const QImage& day, QSize size, Stretch stretch);

// ANDs each night span of `columns` onto `map` with the night mask, one pixel wide; rows and columns
// outside the map (row mapHeight, the columns past its right edge) are left out.
void paintTerminator(QImage& map, const TerminatorColumns& columns);

// Each marker: a filled 4 × 4 square on its point and its name beside it, by the quarter rule, with
// a black shadow. `scale` multiplies the handheld's pixel sizes for large maps; `font` is the labels'.
void paintMarkers(QPainter& painter, const std::vector<Marker>& markers, QSize map, const QFont& font, int scale = 1);

// Markers with the font of their labels, at `scale` times the handheld's pixel sizes.
struct MarkerSet
{
    std::vector<Marker> markers;
    QFont font;
    int scale = 1;
};

// The whole map: `base` stretched to `size`, the night of `columns` darkened, then the markers unless
// `markers` is null. Null when a map of that size cannot be held in memory.
[[nodiscard]] QImage render(
    const QImage& base, QSize size, Stretch stretch, const TerminatorColumns& columns, const MarkerSet* markers);

} // namespace MapRenderer
