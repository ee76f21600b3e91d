// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/map/MapLayout.h"

#include "astro/MapPoint.h"

#include <algorithm>
#include <array>

namespace {

// The rows below the map, top to bottom: where each goes, its height and its inset from both sides (the
// name is fitted to the width less twice its inset). The space left over is shared out between the rows.
struct Row
{
    QRect MapLayout::*place;
    int height;
    int inset;
};

constexpr std::array<Row, 5> Rows {{
    {&MapLayout::clock, 34, 0},
    {&MapLayout::name, 24, 36},
    {&MapLayout::cityTime, 24, 4},
    {&MapLayout::coordinates, 16, 4},
    {&MapLayout::sun, 18, 4},
}};

} // namespace

MapLayout MapLayout::of(int width, int height)
{
    MapLayout layout;
    layout.mapHeight = MapHeightFor(height);
    layout.map = QRect(0, 0, width, std::max(layout.mapHeight, 0));
    int rowsHeight = 0;
    for (const Row& row : Rows)
        rowsHeight += row.height;
    const int gap = std::clamp((height - layout.mapHeight - rowsHeight) / static_cast<int>(Rows.size()), 0, 8);
    int top = layout.mapHeight + 2;
    for (const Row& row : Rows) {
        layout.*row.place = QRect(row.inset, top, width - 2 * row.inset, row.height);
        top += row.height + gap;
    }
    return layout;
}
