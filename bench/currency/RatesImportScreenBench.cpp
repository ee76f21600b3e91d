// SPDX-License-Identifier: GPL-3.0-or-later
// `wanderkit rates import` of a 40-currency file into the shipped list, then the Currency Converter opened
// until its first frame is painted. Target: at most 20 ms for the two together (manual time: the screen's
// closing, which saves its settings, is left out).
#include "DayOfRates.h"
#include "DeviceRig.h"
#include "cli/CommandRunner.h"
#include "screens/currency/CurrencyScreen.h"

#include <QEventLoop>
#include <QTimer>
#include <benchmark/benchmark.h>

#include <chrono>
#include <fstream>
#include <sstream>

namespace {

// The converter on the shipped data in a fresh state folder, and a day of rates to import.
struct ConverterRig : DeviceRig
{
    ConverterRig()
        : initial(ReadInitialCurrencies(device->paths(), messages))
        , screen(environment, window, initial)
    {
        std::ofstream(file(), std::ios::binary) << DayOfRatesFile();
        window.show();
    }

    std::string file() const { return state.filePath(QStringLiteral("eurofxref-daily.xml")).toStdString(); }

    int import() const
    {
        std::ostringstream out, err;
        return RunCommand(
            "rates", {{state.path().toStdString(), WANDERKIT_DEVICE_ROOT, {}}, {"import", file()}}, out, err);
    }

    // Opens the converter; `painted` is called at its first frame, then it is closed.
    void openUntilPainted(const std::function<void()>& painted)
    {
        QMetaObject::Connection shown = QObject::connect(&window, &DeviceWindow::screenShown, &window, [&](Screen&) {
            QEventLoop waitForPaint;
            QObject::connect(&screen, &Screen::painted, &waitForPaint, &QEventLoop::quit);
            QTimer::singleShot(1000, &waitForPaint, &QEventLoop::quit);
            waitForPaint.exec();
            painted();
            screen.endScreen();
        });
        window.run(screen);
        QObject::disconnect(shown);
    }

    InitialCurrencyList initial;
    CurrencyScreen screen;
};

void ImportThenOpenTheConverter(benchmark::State& state)
{
    ConverterRig rig;
    rig.openUntilPainted([] {});
    for (auto _ : state) {
        const auto started = std::chrono::steady_clock::now();
        if (rig.import() != 0)
            state.SkipWithError("the import failed");
        rig.openUntilPainted([&] {
            const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - started;
            state.SetIterationTime(elapsed.count());
        });
    }
    if (rig.screen.lastUpdateText() != QStringLiteral("Last update: 17/5/2024 "))
        state.SkipWithError("the converter does not show the imported rates' date");
}
BENCHMARK(ImportThenOpenTheConverter)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(30);

} // namespace
