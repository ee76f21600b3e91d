// SPDX-License-Identifier: GPL-3.0-or-later
// The shipped device root, read with the program's own readers.
#include "RecordingMessageSink.h"
#include "TempDir.h"
#include "device/DevicePaths.h"
#include "store/CityCatalogue.h"
#include "store/CountryCityList.h"
#include "store/CurrencyStore.h"
#include "store/InitialCurrencyList.h"
#include "store/ObjectStore.h"
#include "store/WeatherFavourites.h"
#include "text/WideText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace {

class ShippedData : public ::testing::Test
{
protected:
    void SetUp() override { cities.Load(); }

    // The count at the start of `line` of a shipped file.
    static std::int32_t countIn(const char* name, int line)
    {
        std::string bytes = TempDir::read(std::filesystem::path(WANDERKIT_SHIPPED_DEVICE_ROOT) / name);
        for (int i = 0; i < line; ++i)
            bytes.erase(0, bytes.find('\n') + 1);
        return Wtol(Latin1ToWide(bytes));
    }

    DevicePaths paths {WANDERKIT_SHIPPED_DEVICE_ROOT};
    RecordingMessageSink messages;
    std::unique_ptr<ObjectStore> objects = ObjectStore::openInMemory();
    CityCatalogue cities {*objects, paths, messages};
};

} // namespace

TEST_F(ShippedData, TheCatalogueHoldsEveryCityAndTheDefaultClocksLandOnRealCities)
{
    EXPECT_TRUE(messages.messages.empty());
    EXPECT_EQ(cities.Count(), countIn("cities.lst", 1)); // below the header line
    EXPECT_TRUE(cities.Count() >= 1050 && cities.Count() <= 1150) << cities.Count();
    const std::pair<std::uint32_t, const wchar_t*> clocks[] = {{565, L"London:United Kingdom"},
        {684, L"New York:United States"}, {756, L"Paris:France"}, {988, L"Tokyo:Japan"}};
    for (const auto& [position, name] : clocks)
        EXPECT_EQ(cities.CityName(position) + L":" + cities.Country(position), name) << position;
    // The readers widen bytes one by one: the city file is kept to 7-bit ASCII.
    EXPECT_TRUE(std::ranges::all_of(
        TempDir::read(paths.root() / "cities.lst"), [](char c) { return static_cast<unsigned char>(c) < 128; }));
}

TEST_F(ShippedData, EveryCityIsInItsCountrysWeatherListAndSoIsEveryFavourite)
{
    std::set<std::wstring> countries;
    for (std::uint32_t i = 0; i < cities.Count(); ++i) {
        const CityRecord city = cities.Record(i);
        const CountryCityList list = CountryCityList::read(paths, city.country);
        countries.insert(city.country);
        // The code found by name must be the one on the city's own line.
        const std::wstring ownLine = L"\n" + city.name + L";" + list.codeOf(city.name).value_or(L"?") + L"\n";
        EXPECT_NE((L"\n" + list.text()).find(ownLine), std::wstring::npos) << WideToUtf8(city.name);
    }
    EXPECT_GE(countries.size(), 190u);

    WeatherFavourites favourites(*objects, paths, messages);
    favourites.loadFavouritesOnce();
    EXPECT_EQ(favourites.count(), countIn("cities.wet", 0));
    std::set<std::wstring> names;
    for (std::uint32_t i = 0; i < favourites.count(); ++i) {
        const std::wstring name = favourites.getName(i);
        names.insert(name);
        EXPECT_EQ(
            CountryCityList::read(paths, favourites.getCountryFile(i)).codeOf(name), favourites.getLocationCode(i))
            << WideToUtf8(name);
    }
    for (const wchar_t* city : {L"London", L"New York", L"Paris", L"Tokyo"})
        EXPECT_TRUE(names.contains(city)) << WideToUtf8(city);
}

TEST_F(ShippedData, CurrenciesLandOnTheConverterDefaults)
{
    const InitialCurrencyList list = ReadInitialCurrencies(paths, messages);
    EXPECT_EQ(std::tuple(list.count, list.entries.size()), std::tuple(189, 189u));
    CurrencyStore store(*objects);
    store.SetInitialList(list);
    store.Load();
    EXPECT_EQ(store.RecordCount(), 189);
    const std::tuple<std::uint32_t, const wchar_t*> defaults[]
        = {{61, L"EUR Euro"}, {180, L"USD US Dollar"}, {27, L"GBP British Pound"}};
    for (const auto& [position, codeAndName] : defaults)
        EXPECT_EQ(store.Code(position) + L" " + store.Name(position), codeAndName);
    EXPECT_DOUBLE_EQ(Wcstod(store.RateText(180)), 1.0);
    for (std::uint32_t i = 0; i < 189; ++i)
        EXPECT_GT(Wcstod(store.RateText(i)), 0.0) << WideToUtf8(store.Name(i));
}
