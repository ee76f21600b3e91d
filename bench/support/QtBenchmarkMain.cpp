// SPDX-License-Identifier: GPL-3.0-or-later
// The main of the benchmarks that run screens: Google Benchmark inside an offscreen Qt application.
#include <QApplication>
#include <benchmark/benchmark.h>

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
