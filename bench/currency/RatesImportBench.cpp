// SPDX-License-Identifier: GPL-3.0-or-later
// `wanderkit rates import` of a 40-currency file into the shipped list, then what the Currency Converter
// reads when it opens: the state reopened, its settings, its three currencies, rate lines and last update.
// Target: at most 20 ms for the two together. State files live in a temporary folder.
#include "DayOfRates.h"
#include "SilentSink.h"
#include "TempDir.h"
#include "cli/CommandRunner.h"
#include "currency/CurrencyConversion.h"
#include "settings/SettingsHive.h"
#include "settings/SettingsTable.h"
#include "store/CurrencyStore.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <sstream>

namespace {

int runCommand(const std::filesystem::path& state, std::vector<std::string> args)
{
    CommandRequest request;
    request.device.stateDir = state;
    request.device.deviceRoot = WANDERKIT_DEVICE_ROOT;
    request.args = std::move(args);
    std::ostringstream out, err;
    return RunCommand("rates", request, out, err);
}

// What the converter's Open reads, from a state opened afresh.
std::size_t openConverter(const std::filesystem::path& state)
{
    SilentSink messages;
    auto hive = SettingsHive::open(state / "registry.db", messages);
    auto objects = ObjectStore::open(state / "objectstore.db", messages);
    RegistrySettings settings(*hive);
    CurrencyStore store(*objects);
    store.Load();
    const ConverterCurrency first = ReadConverterCurrency(store, ReadSetting(settings, Settings::Currency1));
    const ConverterCurrency second = ReadConverterCurrency(store, ReadSetting(settings, Settings::Currency2));
    const ConverterCurrency third = ReadConverterCurrency(store, ReadSetting(settings, Settings::Currency3));
    const std::wstring amount = ReadSetting(settings, Settings::CurrencyAmount);
    return FirstRateLine(first, second).size() + SecondRateLine(first, third).size()
        + LastUpdateText(store.LastUpdate(), 2026).size() + ConvertedFieldText(amount, first.rate, second.rate).size()
        + ConvertedFieldText(amount, first.rate, third.rate).size();
}

void ImportThenOpenConverter(benchmark::State& state)
{
    const TempDir folder;
    const std::filesystem::path rates = folder.write("eurofxref-daily.xml", DayOfRatesFile());
    const std::filesystem::path stateDir = folder.path() / "state";
    if (runCommand(stateDir, {}) != 0)
        state.SkipWithError("the first start failed");
    for (auto _ : state) {
        if (runCommand(stateDir, {"import", rates.string()}) != 0)
            state.SkipWithError("the import failed");
        benchmark::DoNotOptimize(openConverter(stateDir));
    }
}
BENCHMARK(ImportThenOpenConverter)->Unit(benchmark::kMillisecond)->Iterations(50);

} // namespace
