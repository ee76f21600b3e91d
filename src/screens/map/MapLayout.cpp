// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/map/MapLayout.h"

#include "astro/MapPoint.h"

#include <algorithm>

namespace {

// Row heights below the map; the space left over is shared out between the rows.
constexpr int ClockRow = 34;
constexpr int NameRow = 24;
constexpr int CityTimeRow = 24;
constexpr int CoordinatesRow = 16;
constexpr int SunRow = 18;
constexpr int NameInset = 36; // the name is fitted to the width less twice this

} // namespace

MapLayout MapLayout::of(int width, int height)
{
    MapLayout layout;
    layout.mapHeight = MapHeightFor(height);
    layout.map = QRect(0, 0, width, std::max(layout.mapHeight, 0));
    const int spare = height - layout.mapHeight - (ClockRow + NameRow + CityTimeRow + CoordinatesRow + SunRow);
    const int gap = std::clamp(spare / 5, 0, 8);
    int top = layout.mapHeight + 2;
    const auto row = [&](int rowHeight, int inset = 0) {
        const QRect rect(inset, top, width - 2 * inset, rowHeight);
        top += rowHeight + gap;
        return rect;
    };
    layout.clock = row(ClockRow);
    layout.name = row(NameRow, NameInset);
    layout.cityTime = row(CityTimeRow, 4);
    layout.coordinates = row(CoordinatesRow, 4);
    layout.sun = row(SunRow, 4);
    return layout;
}
