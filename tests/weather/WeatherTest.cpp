// SPDX-License-Identifier: GPL-3.0-or-later
#include "OpenMeteoFixture.h"
#include "device/DevicePaths.h"
#include "settings/MappingFile.h"
#include "support/FakeDeviceClock.h"
#include "support/TempDir.h"
#include "weather/ForecastDisplay.h"
#include "weather/ForecastTable.h"
#include "weather/OpenMeteoForecast.h"
#include "weather/WeatherCountries.h"
#include "weather/WeatherTexts.h"
#include "weather/WmoWeatherCodes.h"

#include <gtest/gtest.h>

#include <cwchar>
#include <tuple>

namespace {

constexpr ForecastSources Sources {L"rain@61;cloud@03;", L"\\wiconset\\", L"\\Wanderkit.exe", 0};
const SystemTime Today = FakeDeviceClock::at(2026, 11, 24, 9, 0, 0);

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

// The fixture's five days with the value at the JSON pointer `pointer` set to `value`.
std::string with(const char* pointer, const nlohmann::json& value)
{
    nlohmann::json response = OpenMeteoFixture::response(5);
    response[nlohmann::json::json_pointer(pointer)] = value;
    return response.dump();
}

} // namespace

TEST(ForecastTable, SplitsAtCaretsIntoFiveBlocksOfTwelve)
{
    // Sixty fields, each ended by "^"; what follows them is not read.
    const std::wstring text = forecast();
    EXPECT_EQ(std::count(text.begin(), text.end(), L'^'), 60);
    EXPECT_EQ(ForecastTable::split(text + L"extra^more^").joined(), text);

    // Fewer fields leave the rest empty; the last piece has no "^" after it and is no field. Outside the
    // five blocks of twelve every field is empty and writes go nowhere.
    const ForecastTable fewer = ForecastTable::split(L"61^Rain^^3^4^5^6^7^8^9^10^11^13^last");
    const std::tuple<int, int, std::wstring> fields[] = {{0, 0, L"61"}, {0, 2, L""}, {0, 11, L"11"}, {1, 0, L"13"},
        {1, 1, L""}, {4, 11, L""}, {5, 0, L""}, {0, -1, L""}};
    for (const auto& [block, field, value] : fields)
        EXPECT_EQ(fewer.field(block, field), value) << block << ' ' << field;
    ForecastTable outside;
    outside.setField(5, 0, L"x");
    outside.setField(0, 12, L"x");
    outside.setField(-1, 0, L"x");
    EXPECT_EQ(outside, ForecastTable());
}

TEST(ForecastDisplay, DayDifferenceInCalendarDays)
{
    const std::tuple<std::wstring, SystemTime, std::int64_t> cases[] = {
        {L"28/11/2026:France", FakeDeviceClock::at(2026, 11, 24, 23, 59, 59), 4}, // the time of day does not count
        {L"32/01/2026", FakeDeviceClock::at(2026, 2, 1, 12, 0, 0), 0}, // 32 January is 1 February
        // 1 January 2000 to 1 January 2026: 26 years of 365 days and 7 leap days.
        {L"01/01/2000", FakeDeviceClock::at(2026, 1, 1, 12, 0, 0), -(26 * 365 + 7)},
    };
    for (const auto& [key, today, days] : cases)
        EXPECT_EQ(ForecastDayDifference(key, today), days) << testing::PrintToString(key);
    // Unreadable parts are 0: day 0 of month 0 of year 0 lies far back.
    EXPECT_LT(ForecastDayDifference(L"x", FakeDeviceClock::at(2026, 1, 1, 12, 0, 0)), -700000);
}

TEST(ForecastDisplay, DaysFollowTheUpdateDate)
{
    const std::tuple<const char*, std::wstring, std::vector<std::wstring>> cases[]
        = {{"updated for four days ahead: blocks 0 to 4", L"28/11/2026",
               {L"Day 0", L"Day 1", L"Day 2", L"Day 3", L"Day 4"}},
            {"a day later one day fewer", L"27/11/2026", {L"Day 1", L"Day 2", L"Day 3", L"Day 4", L""}},
            {"ahead by five days: today has no block", L"29/11/2026", {L"", L"Day 0", L"Day 1", L"Day 2", L"Day 3"}},
            {"a fresh favourite", L"01/01/2000", {L"", L"", L"", L"", L""}}};
    for (const auto& [what, key, words] : cases) {
        const ForecastDisplay display = ForecastDisplay::compute(forecast(), key, Today, Sources);
        for (int k = 0; k < ForecastDisplay::Days; ++k) {
            EXPECT_EQ(display.day(k).condition, words[k]) << what << ", day " << k;
            EXPECT_TRUE(!words[k].empty() || display.day(k) == ForecastDayTexts()) << what << ", day " << k;
        }
    }
}

TEST(ForecastDisplay, TextsOfADay)
{
    const ForecastDisplay fresh = ForecastDisplay::compute(forecast(), L"28/11/2026:France", Today, Sources);
    // 20 and 10 °C are 68 and 50 °F; felt 19 and 11 °C, 66 and 52 °F.
    EXPECT_EQ(fresh.day(0),
        (ForecastDayTexts {L"\\wiconset\\rain.bmp", L"Day 0", L"18 km/h, SW", L"68\u00B0 : 50\u00B0", L"40%", L"07:42",
            L"16:58", L"66/52", L"", L""}));
    EXPECT_EQ(fresh.day(1).iconPath, L"\\wiconset\\cloud.bmp");

    // A day later the forecast starts on an earlier day, which fields 10 and 11 tell.
    const ForecastDisplay older = ForecastDisplay::compute(forecast(), L"27/11/2026:France", Today, Sources);
    EXPECT_EQ(older.day(0).date + L"|" + older.day(0).issue, L"25/11|Forecast of 24/11");

    ForecastSources celsius = Sources;
    celsius.temperatureUnit = 1;
    const ForecastDisplay inCelsius = ForecastDisplay::compute(forecast(), L"28/11/2026", Today, celsius);
    EXPECT_EQ(inCelsius.day(0).temperatures + inCelsius.day(0).realFeel, L"20\u00B0 : 10\u00B019/11");
}

// Which icon each code gets, and that the icons exist, the data tools check against the file; here that the
// lookup over the shipped mapping finds an icon for exactly the codes that have words.
TEST(ForecastDisplay, TheShippedMappingGivesEveryWeatherCodeAnIcon)
{
    auto hive = SettingsHive::openInMemory();
    RegistrySettings settings(*hive);
    const std::wstring mapping = ReadMappingText(settings, DevicePaths(WANDERKIT_SHIPPED_DEVICE_ROOT));
    int worded = 0;
    for (int code = 0; code < 100; ++code) {
        wchar_t digits[3];
        std::swprintf(digits, 3, L"%02d", code);
        worded += WmoWeatherWords(code).empty() ? 0 : 1;
        EXPECT_EQ(MappingIconName(mapping, digits) != L"na", !WmoWeatherWords(code).empty()) << code;
    }
    // The WMO table's 0 to 3, 45, 48, 51, 53, 55, 56, 57, 61, 63, 65, 66, 67, 71, 73, 75, 77, 80 to 82, 85, 86,
    // 95, 96 and 99.
    EXPECT_EQ(worded, 28);
}

TEST(WeatherTexts, TemperaturesInFahrenheit)
{
    // The converter, the Celsius text and its Fahrenheit text. 21 °C = 69.8 °F, 13 °C = 55.4 °F, -5 °C = 23 °F,
    // -40 is the same on both scales, 37 °C = 98.6 °F and -18 °C = -0.4 °F, printed "-0"; "-" and "N/A" stay
    // in either part, empty parts read as 0 °C and text after the number is ignored, as _wtol ignores it.
    // Felt temperatures come in pairs: 19 and 11 °C are 66.2 and 51.8 °F.
    using Convert = std::wstring (*)(std::wstring_view);
    const std::tuple<Convert, std::wstring, std::wstring> cases[]
        = {{FahrenheitText, L"-5\u00B0 : -40\u00B0", L"23\u00B0 : -40\u00B0"},
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
    root.write("weatcs/Cura\u00E7ao", ">\n"); // a name in UTF-8
    root.write("weatcs/Austria", "");
    root.write("weatcs/old/Italy", "Rome;3169070\n");
    const std::vector<std::wstring> countries {L"Austria", L"Cura\u00E7ao", L"Spain"};
    EXPECT_EQ(ListWeatherCountries(paths), countries);
}

TEST(OpenMeteoForecast, DaysAreTakenUpToFiveAndTheLastGoesIntoBlockFour)
{
    // The first day: 20.6 rounds to 21 and 12.5 away from zero to 13; 225 degrees is south-west; 17.5 km/h
    // rounds to 18. The blocks before it are empty.
    const std::wstring first = L"61^Light rain^18 km/h^SW^13^21^40%^07:42^19/11^16:58^24/11^24/11^";
    // Days given, taken, the last date, and block 4's highest temperature (20.6 + taken - 1) and date.
    const std::tuple<int, int, std::wstring, std::wstring, std::wstring> cases[]
        = {{3, 3, L"26/11/2026", L"23", L"26/11"}, {7, 5, L"28/11/2026", L"25", L"28/11"}};
    for (const auto& [given, taken, lastDate, high, date] : cases) {
        SCOPED_TRACE(given);
        std::string error;
        const auto forecast = OpenMeteoForecast::read(OpenMeteoFixture::response(given).dump(), error);
        ASSERT_TRUE(forecast) << error;
        EXPECT_EQ(std::tuple(forecast->days(), forecast->firstDate(), forecast->lastDate()),
            std::tuple(taken, std::wstring(L"24/11/2026"), lastDate));
        EXPECT_EQ(std::tuple(forecast->latitude(), forecast->longitude()), std::tuple(48.86, 2.34));
        EXPECT_TRUE(forecast->table().joined().starts_with(std::wstring(12 * (5 - taken), L'^') + first));
        EXPECT_EQ(forecast->table().field(4, 5) + L" " + forecast->table().field(4, 10), high + L" " + date);
    }
}

TEST(OpenMeteoForecast, CodesNullsAndUnits)
{
    // The response, the field of the first block and its text.
    const std::tuple<std::string, int, std::wstring> cases[] = {
        {with("/daily/weather_code/0", 3), 1, L"Overcast"},
        {with("/daily/weather_code/0", 20), 1, L"-"}, // a code without words
        {with("/daily/weather_code/0", nullptr), 0, L"N/A"},
        {with("/daily/temperature_2m_min/0", -2.5), 4, L"-3"}, // a negative half rounds away from zero
        {with("/daily/apparent_temperature_min/0", nullptr), 8, L"19/-"},
        {with("/daily_units/wind_speed_10m_max", "kn"), 2, L"18 kn"},
        {with("/daily/wind_direction_10m_dominant/0", 355), 3, L"N"},
    };
    for (const auto& [response, field, text] : cases) {
        std::string error;
        const auto forecast = OpenMeteoForecast::read(response, error);
        ASSERT_TRUE(forecast) << error;
        EXPECT_EQ(forecast->table().field(0, field), text) << response;
    }
}

TEST(OpenMeteoForecast, RefusesWhatIsNotADailyForecast)
{
    const std::string good = OpenMeteoFixture::response(5).dump();
    // The bytes, and the start of the problem found.
    const std::pair<std::string, std::string> cases[] = {
        {good.substr(0, good.size() / 2), "is not complete, well-formed JSON"},
        {std::string(100000, '[') + std::string(100000, ']'), "does not hold a JSON object"},
        {"{\"pad\":\"" + std::string(OpenMeteoForecast::MaxBytes, ' ') + "\"}", "is larger than"},
        {R"({"error":true,"reason":"Latitude must be in range of -90 to 90\u00B0."})",
            "is an error report of the forecast service: \"Latitude must be in range of -90 to 90??...\""},
        {with("/daily", nullptr), "has no \"daily\" object"},
        {with("/daily/time", nlohmann::json::array()), "holds no days"},
        {with("/daily/time/2", "26.11.2026"), "daily.time[2] is not a date written YYYY-MM-DD"},
        {with("/daily/time/3", "2026-11-28"), "daily.time[3] is not the day after daily.time[2]"},
        {with("/daily/temperature_2m_max", {20.6, 21.6, 22.6, 23.6}),
            "daily.temperature_2m_max has 4 values for 5 days"},
        {with("/daily/temperature_2m_max/1", "21"), "daily.temperature_2m_max[1] is not a number"},
        {with("/daily/temperature_2m_min/4", 1e300), "daily.temperature_2m_min[4] = 1e+300 lies outside -100 to 100"},
        {with("/daily/weather_code/0", 2.5), "daily.weather_code[0] is not a whole number"},
        {with("/daily_units/temperature_2m_min", "\u00B0F"),
            "gives daily_units.temperature_2m_min as \"??F\"; temperatures must be in degrees Celsius"},
        {with("/daily_units/wind_speed_10m_max", "furlongs"),
            "gives daily_units.wind_speed_10m_max as \"furlongs\", not km/h"}};
    for (const auto& [bytes, problem] : cases) {
        std::string error;
        EXPECT_FALSE(OpenMeteoForecast::read(bytes, error)) << problem;
        EXPECT_EQ(error.substr(0, problem.size()), problem);
    }
}
