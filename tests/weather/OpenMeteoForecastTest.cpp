// SPDX-License-Identifier: GPL-3.0-or-later
#include "weather/OpenMeteoForecast.h"

#include "OpenMeteoFixture.h"

#include <gtest/gtest.h>

#include <tuple>

namespace {

// The fixture's five days with the value at the JSON pointer `pointer` set to `value`.
std::string with(const char* pointer, const nlohmann::json& value)
{
    nlohmann::json response = OpenMeteoFixture::response(5);
    response[nlohmann::json::json_pointer(pointer)] = value;
    return response.dump();
}

} // namespace

TEST(OpenMeteoForecast, DaysAreTakenUpToFiveAndTheLastGoesIntoBlockFour)
{
    // The first day: 20.6 rounds to 21 and 12.5 away from zero to 13; 225 degrees is south-west; 17.5 km/h
    // rounds to 18. The blocks before it are empty.
    const std::wstring first = L"61^Light rain^18 km/h^SW^13^21^40%^07:42^19/11^16:58^24/11^24/11^";
    // Days given, taken, the last date, and block 4's highest temperature (20.6 + taken - 1) and date.
    const std::tuple<int, int, std::wstring, std::wstring, std::wstring> cases[]
        = {{3, 3, L"26/11/2026", L"23", L"26/11"}, {5, 5, L"28/11/2026", L"25", L"28/11"},
            {7, 5, L"28/11/2026", L"25", L"28/11"}};
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
