// SPDX-License-Identifier: GPL-3.0-or-later
// `wanderkit rates import` of a 40-currency file into the shipped list, then what the Currency Converter
// reads when it opens: the state reopened, its settings, its three currencies, rate lines and last update.
// Target: at most 20 ms for the two together. State files live in a temporary folder.
#include "EcbFile.h"
#include "cli/CommandRunner.h"
#include "currency/CurrencyConversion.h"
#include "device/MessageSink.h"
#include "settings/SettingsHive.h"
#include "settings/SettingsTable.h"
#include "store/CurrencyStore.h"

#include <benchmark/benchmark.h>

#include <fstream>
#include <sstream>
#include <stdexcept>
#include <stdlib.h>

namespace {

// The ECB's 30 currencies and ten more that the shipped list holds.
const char* const Codes[] = {"USD", "JPY", "BGN", "CZK", "DKK", "GBP", "HUF", "PLN", "RON", "SEK", "CHF", "ISK", "NOK",
    "TRY", "AUD", "BRL", "CAD", "CNY", "HKD", "IDR", "ILS", "INR", "KRW", "MXN", "MYR", "NZD", "PHP", "SGD", "THB",
    "ZAR", "AED", "ARS", "CLP", "COP", "EGP", "KES", "MAD", "NGN", "PKR", "SAR"};

class SilentSink final : public MessageSink
{
public:
    void showMessage(std::wstring_view, std::wstring_view) override { }
};

class Workspace
{
public:
    Workspace()
    {
        std::string pattern = (std::filesystem::temp_directory_path() / "wanderkit-bench-XXXXXX").string();
        if (!mkdtemp(pattern.data()))
            throw std::runtime_error("cannot create a temporary folder");
        m_root = pattern;
        std::vector<std::pair<std::string, std::string>> rates;
        for (std::size_t i = 0; i < std::size(Codes); ++i)
            rates.push_back({Codes[i], std::to_string(1.0859 + static_cast<double>(i))});
        std::ofstream(file(), std::ios::binary) << EcbFile("2024-05-17", rates);
    }
    ~Workspace() { std::filesystem::remove_all(m_root); }

    std::filesystem::path state() const { return m_root / "state"; }
    std::filesystem::path file() const { return m_root / "eurofxref-daily.xml"; }

private:
    std::filesystem::path m_root;
};

int runCommand(const Workspace& workspace, std::vector<std::string> args)
{
    CommandRequest request;
    request.device.stateDir = workspace.state();
    request.device.deviceRoot = WANDERKIT_DEVICE_ROOT;
    request.args = std::move(args);
    std::ostringstream out, err;
    return RunCommand("rates", request, out, err);
}

// What the converter's Open reads, from a state opened afresh.
std::size_t openConverter(const Workspace& workspace)
{
    SilentSink messages;
    auto hive = SettingsHive::open(workspace.state() / "registry.db", messages);
    auto objects = ObjectStore::open(workspace.state() / "objectstore.db", messages);
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
    Workspace workspace;
    if (runCommand(workspace, {}) != 0)
        state.SkipWithError("the first start failed");
    for (auto _ : state) {
        if (runCommand(workspace, {"import", workspace.file().string()}) != 0)
            state.SkipWithError("the import failed");
        benchmark::DoNotOptimize(openConverter(workspace));
    }
}
BENCHMARK(ImportThenOpenConverter)->Unit(benchmark::kMillisecond)->Iterations(50);

} // namespace
