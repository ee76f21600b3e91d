// SPDX-License-Identifier: GPL-3.0-or-later
// One full World Map redraw at the handheld's work area (240 x 138 map): the Sun, the boundary columns,
// "day.jpg" stretched onto the map, the night AND-ed and the five markers labelled.
// Target: at most 5 ms. Usage: bench_map_redraw [Google Benchmark options]
#include "astro/TerminatorColumns.h"
#include "screens/map/MapRenderer.h"
#include "ui/Painting.h"

#include <QImageReader>
#include <benchmark/benchmark.h>

namespace {

MapRenderer::MarkerSet worldClockMarkers()
{
    return {{{QStringLiteral("Aalborg"), 9, 57, true}, {QStringLiteral("New York"), -74, 40, false},
                {QStringLiteral("Paris"), 2, 48, false}, {QStringLiteral("London"), 0, 51, false},
                {QStringLiteral("Tokyo"), 139, 35, false}},
        Painting::makeFont(14, Painting::Bold), 1};
}

// range(0) is the month: 3 samples every column, 6 every third and interpolates.
void MapRedraw(benchmark::State& state)
{
    const QImage day = QImageReader(QStringLiteral(WANDERKIT_DEVICE_ROOT "/day.jpg"), "jpg").read();
    if (day.isNull()) {
        state.SkipWithError("day.jpg not found");
        return;
    }
    const MapRenderer::MarkerSet markers = worldClockMarkers();
    const auto month = static_cast<std::uint16_t>(state.range(0));
    const QSize size(240, 138);
    std::uint16_t minute = 0;
    for (auto _ : state) {
        const SystemTime now {2026, month, 0, 20, 12, minute, 0, 0};
        minute = static_cast<std::uint16_t>((minute + 1) % 60);
        const TerminatorColumns night
            = ComputeTerminatorColumns(computeSunForTerminator(now, {2, 0}), size.width(), size.height(), month);
        benchmark::DoNotOptimize(MapRenderer::render(day, size, MapRenderer::Stretch::Plain, night, &markers));
    }
}
BENCHMARK(MapRedraw)->Arg(3)->Arg(6)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->Repetitions(3);

} // namespace
