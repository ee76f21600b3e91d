// SPDX-License-Identifier: GPL-3.0-or-later
#include "weather/OpenMeteoForecast.h"

#include "OpenMeteoFixture.h"

#include <gtest/gtest.h>

#include <tuple>

namespace {

std::optional<OpenMeteoForecast> read(const std::string& bytes, std::string& error)
{
    return OpenMeteoForecast::read(bytes, error);
}

std::vector<std::wstring> fieldsOf(const OpenMeteoForecast& forecast, int block)
{
    std::vector<std::wstring> fields;
    for (int field = 0; field < ForecastTable::Fields; ++field)
        fields.push_back(forecast.table().field(block, field));
    return fields;
}

// The fixture's five days with the value at the JSON pointer `pointer` set to `value`.
std::string with(const char* pointer, const nlohmann::json& value)
{
    nlohmann::json response = OpenMeteoFixture::response(5);
    response[nlohmann::json::json_pointer(pointer)] = value;
    return response.dump();
}

// The fixture's five days without the member or element at `pointer`.
std::string without(const char* pointer)
{
    const nlohmann::json::json_pointer path(pointer);
    nlohmann::json response = OpenMeteoFixture::response(5);
    nlohmann::json& parent = response[path.parent_pointer()];
    if (parent.is_array())
        parent.erase(std::stoul(path.back()));
    else
        parent.erase(path.back());
    return response.dump();
}

} // namespace

TEST(OpenMeteoForecast, FiveDaysFillTheFiveBlocks)
{
    std::string error;
    const auto forecast = read(OpenMeteoFixture::response(5).dump(), error);
    ASSERT_TRUE(forecast) << error;
    EXPECT_EQ(forecast->days(), 5);
    EXPECT_EQ(forecast->firstDate(), L"24/11/2026");
    EXPECT_EQ(forecast->lastDate(), L"28/11/2026");
    EXPECT_EQ(forecast->latitude(), 48.86);
    EXPECT_EQ(forecast->longitude(), 2.34);
    // 20.6 rounds to 21 and 12.5 away from zero to 13; 225 degrees is south-west; 17.5 km/h rounds to 18.
    const std::vector<std::wstring> first {L"61", L"Light rain", L"18 km/h", L"SW", L"13", L"21", L"40%", L"07:42",
        L"19/11", L"16:58", L"24/11", L"24/11"};
    EXPECT_EQ(fieldsOf(*forecast, 0), first);
    const std::vector<std::wstring> last {L"61", L"Light rain", L"18 km/h", L"SW", L"13", L"25", L"40%", L"07:42",
        L"19/11", L"16:58", L"28/11", L"24/11"};
    EXPECT_EQ(fieldsOf(*forecast, 4), last);
}

TEST(OpenMeteoForecast, DaysAreTakenUpToFiveAndTheLastGoesIntoBlockFour)
{
    using Case = std::tuple<int, int, std::wstring, std::wstring>; // days given, taken, last date, block 4 date
    const Case cases[] = {{3, 3, L"26/11/2026", L"26/11"}, {7, 5, L"28/11/2026", L"28/11"}};
    for (const auto& [given, taken, lastDate, lastDay] : cases) {
        SCOPED_TRACE(given);
        std::string error;
        const auto forecast = read(OpenMeteoFixture::response(given, "2026-11-24").dump(), error);
        ASSERT_TRUE(forecast) << error;
        EXPECT_EQ(forecast->days(), taken);
        EXPECT_EQ(forecast->lastDate(), lastDate);
        EXPECT_EQ(forecast->table().field(4, 10), lastDay);
        EXPECT_EQ(forecast->table().field(5 - taken, 10), L"24/11");
        for (int block = 0; block < 5 - taken; ++block)
            EXPECT_EQ(fieldsOf(*forecast, block), std::vector<std::wstring>(12));
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
        const auto forecast = read(response, error);
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
        {without("/daily"), "has no \"daily\" object"}, {with("/daily/time", nlohmann::json::array()), "holds no days"},
        {with("/daily/time/2", "26.11.2026"), "daily.time[2] is not a date written YYYY-MM-DD"},
        {with("/daily/time/3", "2026-11-28"), "daily.time[3] is not the day after daily.time[2]"},
        {without("/daily/temperature_2m_max/4"), "daily.temperature_2m_max has 4 values for 5 days"},
        {with("/daily/temperature_2m_max/1", "21"), "daily.temperature_2m_max[1] is not a number"},
        {with("/daily/temperature_2m_min/4", 1e300), "daily.temperature_2m_min[4] = 1e+300 lies outside -100 to 100"},
        {with("/daily/weather_code/0", 2.5), "daily.weather_code[0] is not a whole number"},
        {with("/daily_units/temperature_2m_min", "\u00B0F"),
            "gives daily_units.temperature_2m_min as \"??F\"; temperatures must be in degrees Celsius"},
        {with("/daily_units/wind_speed_10m_max", "furlongs"),
            "gives daily_units.wind_speed_10m_max as \"furlongs\", not km/h"}};
    for (const auto& [bytes, problem] : cases) {
        std::string error;
        EXPECT_FALSE(read(bytes, error)) << problem;
        EXPECT_EQ(error.substr(0, problem.size()), problem);
    }
}
