// SPDX-License-Identifier: GPL-3.0-or-later
#include "weather/WeatherTexts.h"

#include "device/DevicePaths.h"
#include "support/TempDir.h"
#include "weather/WeatherCountries.h"

#include <gtest/gtest.h>

#include <tuple>

TEST(WeatherTexts, TemperaturesInFahrenheit)
{
    // The converter, the Celsius text and its Fahrenheit text. 21 °C = 69.8 °F, 13 °C = 55.4 °F, -5 °C = 23 °F,
    // -40 is the same on both scales, 37 °C = 98.6 °F and -18 °C = -0.4 °F, printed "-0"; "-" and "N/A" stay
    // in either part, empty parts read as 0 °C and text after the number is ignored, as _wtol ignores it.
    // Felt temperatures come in pairs: 19 and 11 °C are 66.2 and 51.8 °F.
    using Convert = std::wstring (*)(std::wstring_view);
    const std::tuple<Convert, std::wstring, std::wstring> cases[]
        = {{FahrenheitText, L"21\u00B0 : 13\u00B0", L"70\u00B0 : 55\u00B0"},
            {FahrenheitText, L"-5\u00B0 : -40\u00B0", L"23\u00B0 : -40\u00B0"},
            {FahrenheitText, L"37\u00B0 : -18\u00B0", L"99\u00B0 : -0\u00B0"},
            {FahrenheitText, L"N/A\u00B0 : 13\u00B0", L"N/A\u00B0 : 55\u00B0"},
            {FahrenheitText, L"21\u00B0 : -\u00B0", L"70\u00B0 : -\u00B0"},
            {FahrenheitText, L"\u00B0 : \u00B0", L"32\u00B0 : 32\u00B0"},
            {FahrenheitText, L"21C\u00B0 : 13 x\u00B0", L"70\u00B0 : 55\u00B0"},
            {FahrenheitPairText, L"19/11", L"66/52"}, {FahrenheitPairText, L"-/11", L"-/52"},
            {FahrenheitPairText, L"19/N/A", L"66/N/A"}, {FahrenheitPairText, L"", L"32/32"}};
    for (const auto& [convert, celsius, fahrenheit] : cases)
        EXPECT_EQ(convert(celsius), fahrenheit) << testing::PrintToString(celsius);
}

TEST(WeatherTexts, IconNamesFromTheMappingAndTheirPaths)
{
    const std::wstring mapping = L"sun@00;cloud@03,13;rain@61,63;storm@95,96;";
    // The first entry containing the code wins, and the code may stand in the name ("ai" of "rain"); an
    // entry without "@" is its own name, and empty pieces are no entries.
    const std::tuple<std::wstring, std::wstring, std::wstring> cases[]
        = {{mapping, L"61", L"rain"}, {mapping, L"3", L"cloud"}, {mapping, L"ai", L"rain"}, {mapping, L"45", L"na"},
            {L"fog;", L"fog", L"fog"}, {L";;sun@00;", L"", L"sun"}};
    for (const auto& [text, code, name] : cases)
        EXPECT_EQ(MappingIconName(text, code), name) << testing::PrintToString(code);

    // The path keeps the program path up to its first backslash.
    const std::tuple<std::wstring, std::wstring, std::wstring> paths[]
        = {{L"\\Wanderkit.exe", L"\\wiconset\\", L"\\wiconset\\rain.bmp"},
            {L"C:\\Wanderkit\\Wanderkit.exe", L"\\icons\\", L"C:\\icons\\rain.bmp"},
            {L"Wanderkit.exe", L"\\wiconset\\", L"Wanderkit.exe\\wiconset\\rain.bmp"}};
    for (const auto& [program, folder, path] : paths)
        EXPECT_EQ(WeatherIconPath(program, folder, L"rain"), path) << testing::PrintToString(program);
}

TEST(WeatherTexts, CityLinesWeekdaysAndDaySteps)
{
    // An hhmm offset is hours x 100 + minutes, and its minutes carry the sign.
    const std::pair<std::optional<ZoneOffset>, std::wstring> cases[]
        = {{1, L"Paris GMT+1"}, {530, L"Paris GMT+5:30"}, {-330, L"Paris GMT-3:30"}, {std::nullopt, L"Paris"}};
    for (const auto& [offset, line] : cases)
        EXPECT_EQ(WeatherCityLine(L"Paris", offset), line);

    // Sunday to Saturday; the Monday label reads "Done".
    const std::wstring_view labels[] = {L"Sun", L"Done", L"Tue", L"Wed", L"Thu", L"Fri", L"Sat"};
    for (int day = 0; day < 7; ++day)
        EXPECT_TRUE(WeekdayLabel(day) == labels[day] && WeekdayLabel(day + 7) == labels[day]) << day;
    // Day, step, next day: days 1 to 5 wrap around, and a step of 0 goes back.
    const std::tuple<int, int, int> steps[] = {{4, 1, 5}, {5, 3, 1}, {1, -1, 5}, {1, 0, 5}, {3, 0, 2}};
    for (const auto& [day, delta, next] : steps)
        EXPECT_EQ(SteppedDay(day, delta), next) << day << " by " << delta;
}

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
