// SPDX-License-Identifier: GPL-3.0-or-later
// One World Clocks tick: five slots re-formatted from the device clock and the changed areas repainted.
// Target: at most 1 ms of CPU time.
#include "WorldClockRig.h"

#include <QEventLoop>
#include <benchmark/benchmark.h>

namespace {

void WorldClockTick(benchmark::State& state)
{
    WorldClockRig rig;
    long paints = 0;
    QObject::connect(&rig.screen, &Screen::painted, &rig.window, [&] { ++paints; });
    rig.run([&] {
        // Qt paints on its next update request: wait for that paint without spending CPU.
        QEventLoop waitForPaint;
        QObject::connect(&rig.screen, &Screen::painted, &waitForPaint, &QEventLoop::quit);
        QTimer giveUp;
        giveUp.setInterval(200);
        QObject::connect(&giveUp, &QTimer::timeout, &waitForPaint, &QEventLoop::quit);
        for (auto _ : state) {
            rig.screen.refresh();
            giveUp.start();
            waitForPaint.exec();
        }
    });
    state.counters["paints/tick"] = static_cast<double>(paints) / static_cast<double>(state.iterations());
}
// The figure that counts is CPU time: wall time includes Qt's wait for the next update request.
BENCHMARK(WorldClockTick)->Unit(benchmark::kMicrosecond)->Iterations(1000)->Repetitions(3)->MeasureProcessCPUTime();

} // namespace
