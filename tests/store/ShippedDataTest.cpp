// SPDX-License-Identifier: GPL-3.0-or-later
// The shipped device root, read with the program's own readers: its defaults land where the settings point.
// The files' own consistency (country lists, favourites, icons, rates) is checked by tools/check-data.sh.
#include "RecordingMessageSink.h"
#include "TempDir.h"
#include "device/DevicePaths.h"
#include "store/CityCatalogue.h"
#include "store/CurrencyStore.h"
#include "store/InitialCurrencyList.h"
#include "store/ObjectStore.h"
#include "text/WideText.h"

#include <gtest/gtest.h>

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
}
