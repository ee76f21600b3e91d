// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandFixture.h"
#include "weather/OpenMeteoFixture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iostream>
#include <sstream>

namespace {

// Three favourites, Paris the one catalogue city, and the icon mapping. The forecast's texts and the days
// shown after the update day are checked in the weather tests; here the lines, the day chosen, the imports.
class WeatherCommands : public CommandFixture
{
protected:
    void SetUp() override
    {
        now = "2026-11-24 09:00:00";
        device.write("cities.wet", "3\nFrance;Paris;2988507\nItaly;Rome;3169070\nUnited Kingdom;London;2643743\n");
        device.write("mapping.cfg", "sunny@00 cloudy@03 rain@61,63 >");
    }

    // Writes a forecast file into the state folder and imports it.
    CommandResult import(const std::string& json, std::vector<std::string> args = {"--favourite", "Paris"})
    {
        args.insert(args.begin(), {"import", state.write("forecast.json", json).string()});
        return run("forecast", args);
    }
    std::string storeBytes() const { return TempDir::read(state.path() / "objectstore.db"); }
};

// 24 November 2026 is a Tuesday. The fixture's day i has highs of 20.6 + i °C (21 °C = 69.8 °F), lows of
// 12.5 °C (13 °C = 55.4 °F) and felt temperatures of 18.7/10.9 °C (19/11 °C = 66.2/51.8 °F).
const std::string TuesdayLine = "1\tTue\t\\wiconset\\rain.bmp\tLight rain\t18 km/h, SW\t70\u00B0 : 55\u00B0\t40%\t"
                                "07:42\t16:58\t66/52\t\t\n";

} // namespace

TEST_F(WeatherCommands, AnImportedForecastIsPrintedDayByDay)
{
    // From standard input, without a name: the favourite at the forecast's place. The service answers for
    // the point of its grid nearest to Paris (48.85 N 2.35 E).
    std::istringstream input(OpenMeteoFixture::response(5, "2026-11-24", 48.86, 2.34).dump());
    std::streambuf* const saved = std::cin.rdbuf(input.rdbuf());
    const CommandResult imported = run("forecast", {"import", "-"});
    std::cin.rdbuf(saved);
    EXPECT_TRUE(imported.printed("Paris: 5 days from 24/11/2026 to 28/11/2026\n"));
    EXPECT_NE(run("favourites", {}).out.find("\nParis\t2988507\t28/11/2026\tFrance\n"), std::string::npos);
    const std::string week = run("weather", {"Paris"}).out;
    EXPECT_EQ(std::ranges::count(week, '\n'), 5);
    EXPECT_TRUE(week.starts_with(TuesdayLine)) << week;

    // Without a name, the screen's favourite "wetp" (London, Paris, Rome in name order); one past the
    // favourites names no city.
    ASSERT_EQ(run("settings", {"set", "Wanderkit\\weather", "wetp", "1"}).code, 0);
    EXPECT_TRUE(run("weather", {"--day", "1"}).printed(TuesdayLine));
    ASSERT_EQ(run("settings", {"set", "Wanderkit\\weather", "wetp", "99"}).code, 0);
    EXPECT_TRUE(
        run("weather", {}).refused(1, "wanderkit weather: Sorry, Weather Forecast is not available for this City.\n"));
}

// The reader's own refusals are checked in the weather tests: here one of them, a missing file, favourites
// that are not there and usage errors, none of which touches the store.
TEST_F(WeatherCommands, RefusalsChangeNothing)
{
    ASSERT_EQ(import(OpenMeteoFixture::response(5).dump()).code, 0);
    const std::string before = storeBytes();
    const std::string good = OpenMeteoFixture::response(5, "2026-11-25").dump();
    const std::pair<CommandResult, std::string> cases[] = {
        {import(good.substr(0, good.size() - 10)),
            (state.path() / "forecast.json").string() + ": is not complete, well-formed JSON"},
        {run("forecast", {"import", (state.path() / "none.json").string()}), "none.json: cannot be read"},
        {import(good, {"--favourite", "Nowhere"}), "no favourite is named or numbered \"Nowhere\""},
        {import(OpenMeteoFixture::response(5, "2026-11-24", 45.0, 7.0).dump(), {}),
            "no favourite city lies at latitude 45, longitude 7"},
        {run("forecast", {"import", "a", "b"}), "one FILE only"},
        {run("weather", {"--day", "6"}), "--day wants a day from 1 to 5"},
        {run("weather", {"3"}), "no favourite is named or numbered \"3\""},
    };
    for (const auto& [result, problem] : cases) {
        EXPECT_TRUE(result.refused(2, problem));
        EXPECT_EQ(storeBytes(), before);
    }
}
