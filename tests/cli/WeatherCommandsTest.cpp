// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandResult.h"
#include "RecordingMessageSink.h"
#include "TempDir.h"
#include "device/SystemDeviceClock.h"
#include "settings/RegistrySettings.h"
#include "settings/SettingsTable.h"
#include "weather/OpenMeteoFixture.h"

#include <gtest/gtest.h>

#include <iostream>
#include <sstream>
#include <tuple>

namespace {

// A device with three catalogue cities, all three as favourites, the icon mapping, and a state folder.
class WeatherCommands : public ::testing::Test
{
protected:
    void SetUp() override
    {
        device.write("cities.lst",
            "Test cities\n3\nx;Paris;France;2.35;48.85;1;1;88;2;298;3\nx;Rome;Italy;12.48;41.89;1;1;88;2;298;3\n"
            "x;London;United Kingdom;-0.13;51.51;0;1;88;1;298;2\n");
        device.write("cities.wet", "3\nFrance;Paris;2988507\nItaly;Rome;3169070\nUnited Kingdom;London;2643743\n");
        device.write("mapping.cfg", "sunny@00 cloudy@03 rain@61,63 >");
    }

    CommandResult run(
        const std::string& command, const std::vector<std::string>& args, const char* now = "2026-11-24 09:00:00")
    {
        DeviceOptions options;
        options.stateDir = state.path();
        options.deviceRoot = device.path();
        options.now = SystemDeviceClock::parseLocalTime(now);
        return CommandResult::of(command, args, options);
    }

    // Writes a forecast file below the state-free work folder and imports it.
    CommandResult import(const std::string& json, std::vector<std::string> more = {})
    {
        const std::string file = work.write("forecast.json", json).string();
        std::vector<std::string> args {"import", file};
        args.insert(args.end(), more.begin(), more.end());
        return run("forecast", args);
    }

    void setWetp(std::uint32_t position)
    {
        RecordingMessageSink messages;
        auto hive = SettingsHive::open(state.path() / "registry.db", messages);
        RegistrySettings settings(*hive);
        WriteSetting(settings, Settings::WeatherPosition, position);
    }

    std::string storeBytes() const { return TempDir::read(state.path() / "objectstore.db"); }

    static std::vector<std::string> lines(const std::string& text)
    {
        std::vector<std::string> split;
        std::istringstream in(text);
        for (std::string line; std::getline(in, line);)
            split.push_back(line);
        return split;
    }

    TempDir device;
    TempDir state;
    TempDir work;
};

// 24 November 2026 is a Tuesday. The fixture's day i has highs of 20.6 + i °C (21 °C = 69.8 °F), lows of
// 12.5 °C (13 °C = 55.4 °F) and felt temperatures of 18.7/10.9 °C (19/11 °C = 66.2/51.8 °F).
const std::string TuesdayLine = "1\tTue\t\\wiconset\\rain.bmp\tLight rain\t18 km/h, SW\t70\u00B0 : 55\u00B0\t40%\t"
                                "07:42\t16:58\t66/52\t\t";

} // namespace

TEST_F(WeatherCommands, ListsTheFavourites)
{
    const CommandResult listed = run("favourites", {});
    EXPECT_EQ(listed.code, 0);
    EXPECT_EQ(listed.out,
        "London\t2643743\t01/01/2000\tUnited Kingdom\nParis\t2988507\t01/01/2000\tFrance\n"
        "Rome\t3169070\t01/01/2000\tItaly\n");
    EXPECT_EQ(run("favourites", {"x"}).code, 2);
}

TEST_F(WeatherCommands, AnImportedForecastShowsFiveDaysThenFewer)
{
    const CommandResult imported = import(OpenMeteoFixture::response(5).dump(), {"--favourite", "paris"});
    ASSERT_EQ(imported.code, 0) << imported.err;
    EXPECT_EQ(imported.out, "Paris: 5 days from 24/11/2026 to 28/11/2026\n");
    EXPECT_EQ(lines(run("favourites", {}).out)[1], "Paris\t2988507\t28/11/2026\tFrance");

    const std::vector<std::string> today = lines(run("weather", {"Paris"}).out);
    ASSERT_EQ(today.size(), 5u);
    EXPECT_EQ(today[0], TuesdayLine);
    // Day 5: Saturday 28 November, high 24.6 °C = 25 °C = 77 °F.
    EXPECT_EQ(today[4],
        "5\tSat\t\\wiconset\\rain.bmp\tLight rain\t18 km/h, SW\t77\u00B0 : 55\u00B0\t40%\t07:42\t"
        "16:58\t66/52\t\t");

    // The next day the first day shown is Wednesday's, told as a forecast of the day before; day 5 is empty.
    const std::vector<std::string> tomorrow = lines(run("weather", {"1"}, "2026-11-25 08:00:00").out);
    ASSERT_EQ(tomorrow.size(), 5u);
    EXPECT_EQ(tomorrow[0],
        "1\tWed\t\\wiconset\\rain.bmp\tLight rain\t18 km/h, SW\t72\u00B0 : 55\u00B0\t40%\t07:42\t"
        "16:58\t66/52\t25/11\tForecast of 24/11");
    EXPECT_EQ(tomorrow[4], "5\tSun\t\t\t\t\t\t\t\t\t\t");
    EXPECT_EQ(run("weather", {"paris", "--day", "2"}, "2026-11-25 08:00:00").out, tomorrow[1] + "\n");
}

TEST_F(WeatherCommands, AThreeDayForecastLeavesDaysFourAndFiveEmpty)
{
    ASSERT_EQ(import(OpenMeteoFixture::response(3).dump(), {"--favourite=Rome"}).code, 0);
    const std::vector<std::string> days = lines(run("weather", {"ROME"}).out);
    ASSERT_EQ(days.size(), 5u);
    // Block 0 is not day 1, so each day also tells its date and the forecast's.
    EXPECT_EQ(days[0], TuesdayLine.substr(0, TuesdayLine.size() - 1) + "24/11\tForecast of 24/11");
    EXPECT_EQ(days[2].substr(0, 7), "3\tThu\t\\");
    EXPECT_EQ(days[3], "4\tFri\t\t\t\t\t\t\t\t\t\t");
    EXPECT_EQ(days[4], "5\tSat\t\t\t\t\t\t\t\t\t\t");
}

TEST_F(WeatherCommands, WithoutANameTheForecastsPlaceFindsTheFavourite)
{
    // Rome lies at 41.89 N 12.48 E; the service answers for the nearest point of its grid.
    const CommandResult rome = import(OpenMeteoFixture::response(5, "2026-11-24", 41.875, 12.5).dump());
    ASSERT_EQ(rome.code, 0) << rome.err;
    EXPECT_EQ(rome.out.substr(0, 5), "Rome:");
    const CommandResult nowhere = import(OpenMeteoFixture::response(5, "2026-11-24", 45.0, 7.0).dump());
    EXPECT_EQ(nowhere.code, 2);
    EXPECT_NE(nowhere.err.find("no favourite city lies at latitude 45, longitude 7"), std::string::npos);
}

TEST_F(WeatherCommands, StandardInputIsAFileToo)
{
    std::istringstream input(OpenMeteoFixture::response(5).dump());
    std::streambuf* const saved = std::cin.rdbuf(input.rdbuf());
    const CommandResult imported = run("forecast", {"import", "-", "--favourite", "London"});
    std::cin.rdbuf(saved);
    EXPECT_EQ(imported.code, 0) << imported.err;
    EXPECT_EQ(lines(run("weather", {"london"}).out)[0].substr(0, 12), "1\tTue\t\\wicon");
    std::istringstream truncated("{\"daily\":");
    std::cin.rdbuf(truncated.rdbuf());
    const CommandResult refused = run("forecast", {"import", "-", "--favourite", "London"});
    std::cin.rdbuf(saved);
    EXPECT_EQ(refused.err.substr(0, 60), "wanderkit forecast: standard input: is not complete, well-fo");
}

TEST_F(WeatherCommands, RefusedFilesChangeNothing)
{
    ASSERT_EQ(import(OpenMeteoFixture::response(5).dump(), {"--favourite", "Paris"}).code, 0);
    const std::string before = storeBytes();
    const std::string listed = run("favourites", {}).out;
    nlohmann::json wrongType = OpenMeteoFixture::response(5);
    wrongType["daily"]["temperature_2m_max"] = "warm";
    const std::string good = OpenMeteoFixture::response(5, "2026-11-30").dump();
    using Case = std::tuple<const char*, std::string, std::string>;
    const Case cases[] = {
        {"malformed", "{\"daily\": [1, 2,", "is not complete, well-formed JSON"},
        {"truncated", good.substr(0, good.size() - 10), "is not complete, well-formed JSON"},
        {"wrong type", wrongType.dump(), "has no daily.temperature_2m_max list"},
        {"oversized", std::string(2 * 1024 * 1024, ' '), "is larger than 1048576 bytes"},
    };
    for (const auto& [what, bytes, problem] : cases) {
        SCOPED_TRACE(what);
        const CommandResult refused = import(bytes, {"--favourite", "Paris"});
        EXPECT_EQ(refused.code, 2);
        EXPECT_NE(refused.err.find((work.path() / "forecast.json").string() + ": " + problem), std::string::npos)
            << refused.err;
        EXPECT_EQ(storeBytes(), before);
        EXPECT_EQ(run("favourites", {}).out, listed);
    }
    const CommandResult missing = run("forecast", {"import", (work.path() / "none.json").string()});
    EXPECT_EQ(missing.code, 2);
    EXPECT_NE(missing.err.find("none.json: cannot be read"), std::string::npos);
    EXPECT_EQ(import(good, {"--favourite", "Nowhere"}).code, 2);
    EXPECT_EQ(storeBytes(), before);
}

TEST_F(WeatherCommands, UsageAndMissingFavourites)
{
    using Case = std::tuple<std::string, std::vector<std::string>, int, std::string>;
    const Case cases[] = {
        {"weather", {"--day", "6"}, 2, "--day wants a day from 1 to 5"},
        {"weather", {"--celsius"}, 2, "unknown option --celsius"},
        {"weather", {"Atlantis"}, 2, "no favourite is named or numbered \"Atlantis\""},
        {"weather", {"3"}, 2, "no favourite is named or numbered \"3\""},
        {"forecast", {}, 2, "Usage: wanderkit forecast import FILE"},
        {"forecast", {"import", "a", "b"}, 2, "one FILE only"},
    };
    for (const auto& [command, args, code, message] : cases) {
        SCOPED_TRACE(message);
        const CommandResult result = run(command, args);
        EXPECT_EQ(result.code, code);
        EXPECT_NE(result.err.find(message), std::string::npos) << result.err;
    }
}

TEST_F(WeatherCommands, TheScreensFavouriteByDefault)
{
    // No "wetp": position 0, London, which has no forecast yet: five empty days.
    std::string empty;
    for (const char* day : {"1\tTue", "2\tWed", "3\tThu", "4\tFri", "5\tSat"})
        empty += day + std::string(10, '\t') + "\n";
    EXPECT_EQ(run("weather", {}).out, empty);
    setWetp(1);
    ASSERT_EQ(import(OpenMeteoFixture::response(5).dump(), {"--favourite", "Paris"}).code, 0);
    EXPECT_EQ(lines(run("weather", {}).out)[0], TuesdayLine);
    setWetp(99);
    // A position past the favourites names no city, so there is no forecast to show.
    const CommandResult outOfRange = run("weather", {});
    EXPECT_EQ(outOfRange.code, 1);
    EXPECT_EQ(outOfRange.err, "wanderkit weather: Sorry, Weather Forecast is not available for this City.\n");
}
