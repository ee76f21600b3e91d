// SPDX-License-Identifier: GPL-3.0-or-later
// Timings of the stores on generated data of the shipped sizes: 1,100 cities, 189 currencies and
// 20 weather favourites. State files live in a temporary folder on the same disk as /tmp.
#include "SilentSink.h"
#include "TempDir.h"
#include "settings/RegistrySettings.h"
#include "settings/SettingsHive.h"
#include "store/CityCatalogue.h"
#include "store/CurrencyStore.h"
#include "store/WeatherFavourites.h"

#include <benchmark/benchmark.h>

#include <sstream>

namespace {

constexpr int Cities = 1100;
constexpr int Currencies = 189;
constexpr int Favourites = 20;

// A temporary folder holding a device root with the three data files, removed at the end.
class Workspace
{
public:
    Workspace()
    {
        m_folder.write("device/cities.lst", citiesFile());
        m_folder.write("device/currs.lst", currenciesFile());
        m_folder.write("device/cities.wet", favouritesFile());
    }

    DevicePaths device() const { return DevicePaths(m_folder.path() / "device"); }
    std::filesystem::path stateFile(const std::string& name) const { return m_folder.path() / name; }

private:
    static std::string citiesFile()
    {
        std::ostringstream file;
        file << "Wanderkit cities\n" << Cities << "\n";
        for (int i = 0; i < Cities; ++i) {
            // Names in a scrambled order, so that the load inserts all over the sort order.
            const int key = (i * 7919) % Cities;
            file << i << ";City " << key << ";Country " << key % 97 << ";12.50;41.90;1;3:0:-1:2;10:0:-1:3;60;0;02:00\n";
        }
        return file.str();
    }

    static std::string currenciesFile()
    {
        std::ostringstream file;
        file << Currencies << "\n";
        for (int i = 0; i < Currencies; ++i)
            file << "C" << 100 + i << "_Currency " << (i * 37) % Currencies << "_1.2345#";
        return file.str();
    }

    static std::string favouritesFile()
    {
        std::ostringstream file;
        file << Favourites << "\n";
        for (int i = 0; i < Favourites; ++i)
            file << "Country" << i << ";City " << i << ";LOC" << i << "\r\n";
        return file.str();
    }

    TempDir m_folder;
};

// The launcher's loads on a fresh objectstore.db: cities, weather favourites, currency file and store.
void FirstStartLoadOfAllStores(benchmark::State& state)
{
    Workspace workspace;
    const DevicePaths paths = workspace.device();
    SilentSink messages;
    int run = 0;
    for (auto _ : state) {
        state.PauseTiming();
        auto store = ObjectStore::open(workspace.stateFile("load" + std::to_string(run++)), messages);
        CityCatalogue cities(*store, paths, messages);
        WeatherFavourites favourites(*store, paths, messages);
        CurrencyStore currencies(*store);
        state.ResumeTiming();

        cities.Load();
        favourites.loadFavouritesOnce();
        currencies.SetInitialList(ReadInitialCurrencies(paths, messages));
        currencies.Load();

        state.PauseTiming();
        if (cities.Count() != Cities || favourites.count() != Favourites || currencies.RecordCount() != Currencies)
            state.SkipWithError("a store was not filled");
        state.ResumeTiming();
    }
}
BENCHMARK(FirstStartLoadOfAllStores)->Unit(benchmark::kMillisecond)->Iterations(20);

// A later start: every store finds its database filled.
void LaterStartLoadOfCities(benchmark::State& state)
{
    Workspace workspace;
    const DevicePaths paths = workspace.device();
    SilentSink messages;
    auto store = ObjectStore::open(workspace.stateFile("objectstore.db"), messages);
    CityCatalogue(*store, paths, messages).Load();
    for (auto _ : state) {
        CityCatalogue cities(*store, paths, messages);
        cities.Load();
        benchmark::DoNotOptimize(cities.Count());
    }
}
BENCHMARK(LaterStartLoadOfCities)->Unit(benchmark::kMillisecond);

// The Select dialog's fill: every city's name by position, with the count asked before each read as a
// list-filling loop does. `cold` opens the object store afresh each time (as a new process would), so the
// integrity check, the open and the building of the in-memory order are inside the timing.
void ReadAllCityNamesByPosition(benchmark::State& state)
{
    const bool cold = state.range(0) != 0;
    Workspace workspace;
    const DevicePaths paths = workspace.device();
    SilentSink messages;
    auto store = ObjectStore::open(workspace.stateFile("objectstore.db"), messages);
    auto warm = std::make_unique<CityCatalogue>(*store, paths, messages);
    warm->Load();
    warm->CityName(0);
    for (auto _ : state) {
        auto freshStore = cold ? ObjectStore::open(workspace.stateFile("objectstore.db"), messages) : nullptr;
        auto fresh = cold ? std::make_unique<CityCatalogue>(*freshStore, paths, messages) : nullptr;
        CityCatalogue& reader = cold ? *fresh : *warm;
        if (cold)
            reader.Load();
        std::size_t characters = 0;
        for (std::uint32_t i = 0; i < reader.Count(); ++i)
            characters += reader.CityName(i).size();
        if (characters == 0)
            state.SkipWithError("no cities");
    }
}
BENCHMARK(ReadAllCityNamesByPosition)->Arg(0)->Arg(1)->ArgName("cold")->Unit(benchmark::kMillisecond);

// A setting written to registry.db and synced to disk; `changing` alternates the value, otherwise the
// same value is written again (and skipped).
void WriteOneSetting(benchmark::State& state)
{
    const bool changing = state.range(0) != 0;
    Workspace workspace;
    SilentSink messages;
    auto hive = SettingsHive::open(workspace.stateFile("registry.db"), messages);
    RegistrySettings settings(*hive);
    std::uint32_t value = 0;
    for (auto _ : state)
        settings.SetDWORD(L"Wanderkit\\wrldclk", L"clock1", changing ? ++value : value);
}
BENCHMARK(WriteOneSetting)->Arg(1)->Arg(0)->ArgName("changing")->Unit(benchmark::kMicrosecond);

void ReadOneSetting(benchmark::State& state)
{
    Workspace workspace;
    SilentSink messages;
    auto hive = SettingsHive::open(workspace.stateFile("registry.db"), messages);
    RegistrySettings settings(*hive);
    settings.SetDWORD(L"Wanderkit\\wrldclk", L"clock1", 684);
    for (auto _ : state)
        benchmark::DoNotOptimize(settings.GetDWORD(L"WANDERKIT\\WrldClk", L"clock1"));
}
BENCHMARK(ReadOneSetting)->Unit(benchmark::kMicrosecond);

} // namespace
