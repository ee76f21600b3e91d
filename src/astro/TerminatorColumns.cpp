// SPDX-License-Identifier: GPL-3.0-or-later
#include "astro/TerminatorColumns.h"

#include "astro/HorizonArc.h"

namespace {

// The night test of every row of the map depends on the column only through the transit time, so the
// rows' horizon arcs are computed once and each column scans them from both edges toward the middle.
class ColumnScanner
{
public:
    ColumnScanner(const TerminatorSun& sun, int mapWidth, int mapHeight)
        : m_sun(sun)
        , m_mapWidth(mapWidth)
    {
        m_arcs.reserve(static_cast<std::size_t>(mapHeight) + 1);
        for (int row = 0; row <= mapHeight; ++row)
            m_arcs.push_back(RowHorizonArc(sun, row, mapHeight));
    }

    NightSpan scan(int column) const
    {
        const double lonW = 180 - column * 360.0 / m_mapWidth; // degrees, west positive
        const double transit = TransitFraction(m_sun, lonW);
        const int rows = static_cast<int>(m_arcs.size());
        int first = 0;
        while (first < rows && !night(transit, first))
            ++first;
        if (first == rows)
            return {column, -1, -1};
        int last = rows - 1;
        while (!night(transit, last))
            --last;
        return {column, first, last};
    }

private:
    bool night(double transit, int row) const
    {
        return IsNightAt(transit, m_arcs[static_cast<std::size_t>(row)], m_sun.dayFraction);
    }

    const TerminatorSun& m_sun;
    int m_mapWidth;
    std::vector<HorizonArc> m_arcs;
};

// The step - 1 columns after `previous`, each moved by the integer increment toward `current`.
void interpolate(const NightSpan& previous, const NightSpan& current, int step, std::vector<NightSpan>& spans)
{
    const int firstIncrement = (current.first - previous.first) / step;
    const int lastIncrement = (current.last - previous.last) / step;
    for (int k = 1; k < step; ++k)
        spans.push_back({previous.column + k, previous.first + k * firstIncrement, previous.last + k * lastIncrement});
}

} // namespace

TerminatorColumns ComputeTerminatorColumns(const TerminatorSun& sun, int mapWidth, int mapHeight, int month)
{
    TerminatorColumns columns;
    columns.step = month == 3 || month == 9 ? 1 : 3;
    if (mapWidth <= 0 || mapHeight <= 0)
        return columns;
    const ColumnScanner scanner(sun, mapWidth, mapHeight);
    for (int x = 0; x < mapWidth + 2; x += columns.step) {
        const NightSpan sample = scanner.scan(x);
        if (!columns.samples.empty() && columns.samples.back().last != -1)
            interpolate(columns.samples.back(), sample, columns.step, columns.spans);
        columns.samples.push_back(sample);
        columns.spans.push_back(sample);
    }
    return columns;
}
