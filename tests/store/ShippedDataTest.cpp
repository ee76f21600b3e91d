// SPDX-License-Identifier: GPL-3.0-or-later
// The shipped device root, read with the program's own readers: the default clocks land on real cities.
// The files' own consistency (country lists, favourites, icons, rates) is checked by tools/check-data.sh,
// and the default currencies by the currency command on the shipped root.
#include "RecordingMessageSink.h"
#include "TempDir.h"
#include "device/DevicePaths.h"
#include "store/CityCatalogue.h"
#include "store/ObjectStore.h"
#include "text/WideText.h"

#include <gtest/gtest.h>

TEST(ShippedData, TheCatalogueHoldsEveryCityAndTheDefaultClocksLandOnRealCities)
{
    const DevicePaths paths {WANDERKIT_SHIPPED_DEVICE_ROOT};
    RecordingMessageSink messages;
    const auto objects = ObjectStore::openInMemory();
    CityCatalogue cities(*objects, paths, messages);
    cities.Load();
    EXPECT_TRUE(messages.messages.empty());
    // Every city counted on the line below the header.
    const std::string file = TempDir::read(std::filesystem::path(WANDERKIT_SHIPPED_DEVICE_ROOT) / "cities.lst");
    EXPECT_EQ(cities.Count(), Wtol(Latin1ToWide(file.substr(file.find('\n') + 1))));
    const std::pair<std::uint32_t, const wchar_t*> clocks[] = {{565, L"London:United Kingdom"},
        {684, L"New York:United States"}, {756, L"Paris:France"}, {988, L"Tokyo:Japan"}};
    for (const auto& [position, name] : clocks)
        EXPECT_EQ(cities.CityName(position) + L":" + cities.Country(position), name) << position;
}
