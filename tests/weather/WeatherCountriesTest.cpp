// SPDX-License-Identifier: GPL-3.0-or-later
#include "weather/WeatherCountries.h"

#include "device/DevicePaths.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>

#include <filesystem>

TEST(WeatherCountries, TheFilesOfTheCountryFolder)
{
    TempDir root;
    const DevicePaths paths(root.path());
    EXPECT_TRUE(ListWeatherCountries(paths).empty()); // no folder at all
    root.write("weatcs/Spain", "Madrid;3117735\n>\n");
    root.write("weatcs/Cura\xC3\xA7"
               "ao",
        ">\n");
    root.write("weatcs/Austria", "");
    root.write("weatcs/old/Italy", "Rome;3169070\n");
    root.write("cities.wet", "0\n");
    const std::vector<std::wstring> countries {L"Austria", L"Cura\u00E7ao", L"Spain"};
    EXPECT_EQ(ListWeatherCountries(paths), countries);
}
