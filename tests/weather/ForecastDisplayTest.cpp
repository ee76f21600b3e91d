// SPDX-License-Identifier: GPL-3.0-or-later
#include "weather/ForecastDisplay.h"

#include "settings/MappingFile.h"
#include "support/FakeDeviceClock.h"
#include "weather/ForecastTable.h"
#include "weather/WeatherTexts.h"
#include "weather/WmoWeatherCodes.h"

#include <gtest/gtest.h>

#include <cwchar>
#include <filesystem>
#include <tuple>

namespace {

constexpr ForecastSources Sources {L"rain@61;cloud@03;", L"\\wiconset\\", L"\\Wanderkit.exe", 0};

// A forecast whose block b has code 61 or 03, words "Day b", high 20 + b and low 10 + b.
std::wstring forecast()
{
    ForecastTable table;
    for (int b = 0; b < ForecastTable::Blocks; ++b) {
        const std::wstring fields[] = {b % 2 ? L"03" : L"61", L"Day " + std::to_wstring(b), L"18 km/h", L"SW",
            std::to_wstring(10 + b), std::to_wstring(20 + b), L"40%", L"07:42", L"19/11", L"16:58",
            L"2" + std::to_wstring(4 + b) + L"/11", L"24/11"};
        for (int f = 0; f < ForecastTable::Fields; ++f)
            table.setField(b, f, fields[f]);
    }
    return table.joined();
}

// The words of each day, "" for an empty day.
std::vector<std::wstring> conditions(const ForecastDisplay& display)
{
    std::vector<std::wstring> words;
    for (int k = 0; k < ForecastDisplay::Days; ++k)
        words.push_back(display.day(k).condition);
    return words;
}

} // namespace

TEST(ForecastDisplay, DayDifferenceInCalendarDays)
{
    const std::tuple<std::wstring, SystemTime, std::int64_t> cases[] = {
        {L"28/11/2026:France", FakeDeviceClock::at(2026, 11, 24, 23, 59, 59), 4}, // the time of day does not count
        {L"01/03/2024", FakeDeviceClock::at(2024, 2, 28, 12, 0, 0), 2}, // 29 February lies between
        {L"32/01/2026", FakeDeviceClock::at(2026, 2, 1, 12, 0, 0), 0}, // 32 January is 1 February
        // 1 January 2000 to 1 January 2026: 26 years of 365 days and 7 leap days.
        {L"01/01/2000", FakeDeviceClock::at(2026, 1, 1, 12, 0, 0), -(26 * 365 + 7)},
    };
    for (const auto& [key, today, days] : cases) {
        SCOPED_TRACE(testing::PrintToString(key));
        EXPECT_EQ(ForecastDayDifference(key, today), days);
    }
    // Unreadable parts are 0: day 0 of month 0 of year 0 lies far back.
    EXPECT_LT(ForecastDayDifference(L"x", FakeDeviceClock::at(2026, 1, 1, 12, 0, 0)), -700000);
}

TEST(ForecastDisplay, DaysFollowTheUpdateDate)
{
    const SystemTime today = FakeDeviceClock::at(2026, 11, 24, 9, 0, 0);
    const std::tuple<const char*, std::wstring, std::vector<std::wstring>> cases[]
        = {{"updated for four days ahead: blocks 0 to 4", L"28/11/2026",
               {L"Day 0", L"Day 1", L"Day 2", L"Day 3", L"Day 4"}},
            {"a day later one day fewer", L"27/11/2026", {L"Day 1", L"Day 2", L"Day 3", L"Day 4", L""}},
            {"ahead by five days: today has no block", L"29/11/2026", {L"", L"Day 0", L"Day 1", L"Day 2", L"Day 3"}},
            {"a fresh favourite", L"01/01/2000", {L"", L"", L"", L"", L""}}};
    for (const auto& [what, key, words] : cases) {
        SCOPED_TRACE(what);
        const ForecastDisplay display = ForecastDisplay::compute(forecast(), key, today, Sources);
        EXPECT_EQ(conditions(display), words);
        for (int k = 0; k < ForecastDisplay::Days; ++k)
            EXPECT_TRUE(!words[k].empty() || display.day(k) == ForecastDayTexts()) << k;
    }
}

TEST(ForecastDisplay, TextsOfADay)
{
    const SystemTime today = FakeDeviceClock::at(2026, 11, 24, 9, 0, 0);
    const ForecastDisplay fresh = ForecastDisplay::compute(forecast(), L"28/11/2026:France", today, Sources);
    // 20 and 10 °C are 68 and 50 °F; felt 19 and 11 °C, 66 and 52 °F.
    EXPECT_EQ(fresh.day(0),
        (ForecastDayTexts {L"\\wiconset\\rain.bmp", L"Day 0", L"18 km/h, SW", L"68\u00B0 : 50\u00B0", L"40%", L"07:42",
            L"16:58", L"66/52", L"", L""}));
    EXPECT_EQ(fresh.day(1).iconPath, L"\\wiconset\\cloud.bmp");
    EXPECT_TRUE(fresh.day(5) == ForecastDayTexts() && fresh.day(-1) == ForecastDayTexts());

    // A day later the forecast starts on an earlier day, which fields 10 and 11 tell.
    const ForecastDisplay older = ForecastDisplay::compute(forecast(), L"27/11/2026:France", today, Sources);
    EXPECT_EQ(older.firstBlock(), 1);
    EXPECT_EQ(older.day(0).date + L"|" + older.day(0).issue, L"25/11|Forecast of 24/11");

    ForecastSources celsius = Sources;
    celsius.temperatureUnit = 1;
    const ForecastDisplay inCelsius = ForecastDisplay::compute(forecast(), L"28/11/2026", today, celsius);
    EXPECT_EQ(inCelsius.day(0).temperatures + inCelsius.day(0).realFeel, L"20\u00B0 : 10\u00B019/11");
}

TEST(ForecastDisplay, TheShippedMappingGivesEveryWeatherCodeAnIcon)
{
    const std::filesystem::path root = WANDERKIT_SHIPPED_DEVICE_ROOT;
    auto hive = SettingsHive::openInMemory();
    RegistrySettings settings(*hive);
    const std::wstring mapping = ReadMappingText(settings, DevicePaths(root));
    // Icons by the meaning of the WMO codes, not by the mapping file's wording.
    const std::tuple<std::vector<int>, std::wstring> cases[] = {{{0}, L"sunny"}, {{1}, L"fair"}, {{2}, L"partcloud"},
        {{3}, L"cloudy"}, {{45, 48}, L"fog"}, {{51, 53, 55}, L"drizzle"}, {{56, 57, 66, 67}, L"sleet"},
        {{61, 63, 65}, L"rain"}, {{71, 73, 75, 77}, L"snow"}, {{80, 81, 82}, L"showers"}, {{85, 86}, L"snowshowers"},
        {{95}, L"thunder"}, {{96, 99}, L"hail"}};
    int codes = 0;
    for (const auto& [group, icon] : cases) {
        for (const int code : group) {
            SCOPED_TRACE(code);
            ++codes;
            EXPECT_FALSE(WmoWeatherWords(code).empty());
            wchar_t digits[3];
            std::swprintf(digits, 3, L"%02d", code);
            EXPECT_EQ(MappingIconName(mapping, digits), icon);
            EXPECT_TRUE(std::filesystem::is_regular_file(root / "wiconset" / (std::wstring(icon) + L".bmp")));
        }
    }
    int worded = 0;
    for (int code = 0; code < 100; ++code)
        worded += WmoWeatherWords(code).empty() ? 0 : 1;
    EXPECT_EQ(worded, codes); // every code with words has its icon
    EXPECT_TRUE(std::filesystem::is_regular_file(root / "wiconset" / "na.bmp"));
}
