// SPDX-License-Identifier: GPL-3.0-or-later
// `wanderkit rates import` of a 40-currency file into the shipped list, then the Currency Converter opened
// until its first frame is painted. Target: at most 20 ms for the two together (manual time: the screen's
// closing, which saves its settings, is left out).
#include "EcbFile.h"
#include "cli/CommandRunner.h"
#include "screens/currency/CurrencyScreen.h"
#include "session/DeviceSession.h"
#include "ui/DeviceWindow.h"
#include "ui/QtMessageBox.h"
#include "ui/QtMessageSink.h"
#include "ui/QtScreenTimers.h"

#include <QEventLoop>
#include <QTemporaryDir>
#include <QTimer>
#include <benchmark/benchmark.h>

#include <chrono>
#include <fstream>
#include <sstream>

namespace {

// The ECB's 30 currencies and ten more that the shipped list holds.
const char* const Codes[] = {"USD", "JPY", "BGN", "CZK", "DKK", "GBP", "HUF", "PLN", "RON", "SEK", "CHF", "ISK", "NOK",
    "TRY", "AUD", "BRL", "CAD", "CNY", "HKD", "IDR", "ILS", "INR", "KRW", "MXN", "MYR", "NZD", "PHP", "SGD", "THB",
    "ZAR", "AED", "ARS", "CLP", "COP", "EGP", "KES", "MAD", "NGN", "PKR", "SAR"};

std::unique_ptr<DeviceSession> openDevice(const QTemporaryDir& state, MessageSink& messages)
{
    std::string error;
    auto device = DeviceSession::open({state.path().toStdString(), WANDERKIT_DEVICE_ROOT, {}}, messages, error);
    if (!device)
        qFatal("%s", error.c_str());
    return device;
}

// The converter on the shipped data in a fresh state folder, and a day of rates to import.
struct ConverterRig
{
    ConverterRig()
        : messages(boxes)
        , device(openDevice(state, messages))
        , environment {device->clock(), device->paths(), device->settings(), device->objects(), messages, boxes, timers}
        , window(QSize(240, 268))
        , initial(ReadInitialCurrencies(device->paths(), messages))
        , screen(environment, window, initial)
    {
        std::vector<std::pair<std::string, std::string>> rates;
        for (std::size_t i = 0; i < std::size(Codes); ++i)
            rates.push_back({Codes[i], std::to_string(1.0859 + static_cast<double>(i))});
        std::ofstream(file(), std::ios::binary) << EcbFile("2024-05-17", rates);
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

    QTemporaryDir state;
    QtMessageBox boxes;
    QtMessageSink messages;
    std::unique_ptr<DeviceSession> device;
    QtScreenTimers timers;
    ScreenEnvironment environment;
    DeviceWindow window;
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
