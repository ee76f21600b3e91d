// SPDX-License-Identifier: GPL-3.0-or-later
#include "CityFixture.h"
#include "CommandFixture.h"
#include "EcbFile.h"
#include "cli/CurrencyCommands.h"
#include "weather/OpenMeteoFixture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iostream>
#include <sstream>
#include <tuple>

namespace {

// C0000, the home, on +1 with a European rule and C0684 on -5 with a North American one.
class CityCommands : public CommandFixture
{
protected:
    void SetUp() override
    {
        now = "2026-07-13 09:05:00";
        CityFixture::write(device, {{0, "1;1;88;2;298;3"}, {684, "-5;1;67;2;305;2"}});
    }
};

// In name order: British Pound, Euro, Japanese Yen, US Dollar; rates in US dollars per unit.
class CurrencyCommands : public CommandFixture
{
protected:
    void SetUp() override
    {
        now = "2024-05-20 10:00:00";
        device.write(
            "currs.lst", "4\nUSD_US Dollar_1#EUR_Euro_1.25#JPY_Japanese Yen_0.0078125#GBP_British Pound_1.5625#");
    }
};

// Two favourites and three country lists; Paris is listed by two countries.
class FavouritesCommand : public CommandFixture
{
protected:
    void SetUp() override
    {
        device.write("cities.wet", "2\nFrance;Paris;2988507\nItaly;Rome;3169070\n");
        device.write("weatcs/France", "Paris;2988507\nLyon;2996944\r\n>\nNice;2990440\n");
        device.write("weatcs/United States", "Paris;4717560\nNew York;5128581\n");
        device.write("weatcs/Italy", "Rome;3169070\n");
    }
};

// Three favourites, Paris the one catalogue city, and the icon mapping (forecast texts: the weather tests).
class WeatherCommands : public CommandFixture
{
protected:
    void SetUp() override
    {
        now = "2026-11-24 09:00:00";
        device.write("cities.wet", "3\nFrance;Paris;2988507\nItaly;Rome;3169070\nUnited Kingdom;London;2643743\n");
        device.write("mapping.cfg", "sunny@00 cloudy@03 rain@61,63 >");
    }
};

// 24 November 2026 is a Tuesday. The fixture's day i has highs of 20.6 + i °C (21 °C = 69.8 °F), lows of
// 12.5 °C (13 °C = 55.4 °F) and felt temperatures of 18.7/10.9 °C (19/11 °C = 66.2/51.8 °F).
const std::string TuesdayLine = "1\tTue\t\\wiconset\\rain.bmp\tLight rain\t18 km/h, SW\t70\u00B0 : 55\u00B0\t40%\t"
                                "07:42\t16:58\t66/52\t\t\n";

} // namespace

TEST_F(CityCommands, CitiesTimeCityAndSunShowWhatTheScreensShow)
{
    EXPECT_EQ(std::ranges::count(run("cities", {}).out, '\n'), 1000);
    EXPECT_TRUE(run("cities", {"c0684"}).printed("684\tC0684\tLand\t2.35\t48.85\t-5\t1:67:2:305:2\n"));
    // With a home on GMT, device time is GMT 09:05 and New York, on summer time, four hours behind.
    EXPECT_TRUE(run("time", {"684", "--twelve-hour", "--home", "C0001"})
                    .printed("684\tC0684\t05:05 AM\t13/7 Done\t-4\t1\t8/3/2026\t1/11/2026\n"));
    EXPECT_TRUE(run("city", {"C0684"}, "2026-01-13 12:00:00")
                    .printed("City: C0684\nCountry: Land\nLong/Lat: 2.35/48.85\nDaylight Saving: Not observing now\n"
                             "DST start/end: 8/3/2026-1/11/2026\nTime zone (GMT): -5h\n"));

    // `sun` prints the map's times and offset. Fixture cities stand at 2.35 E 48.85 N, read as 2 and 48; by a separate
    // calculator the Sun rises 04:07, sets 19:47 UTC on 13 July 2026 (15:40 of day), 07:39/16:22 on 13 January (08:42).
    EXPECT_TRUE(run("sun", {"C0000"}).printed("06:07\t21:47\t15:40\t2\n")); // +1 with summer time
    EXPECT_TRUE(run("sun", {"--date=2026-01-13", "C0000:land"}).printed("08:39\t17:22\t08:42\t1\n"));
    // On 8 March the home is on +1 (+2 in July): at 06:30 there C0684 is at 00:30 on 8 March, its first
    // day of summer time (-4); from July's +2 it would still be 7 March (-5), an hour early all day.
    EXPECT_TRUE(
        run("sun", {"C0684", "--date", "2026-03-08"}, "2026-07-13 06:30:00").printed("02:20\t13:45\t11:24\t-4\n"));
}

TEST_F(CityCommands, UnknownCitiesAndBadRequestsAreUsageErrors)
{
    const std::tuple<std::string, std::vector<std::string>, std::string> cases[]
        = {{"city", {"C068"}, "nearest names are: C0680"}, {"time", {"4000"}, ""},
            {"time", {"684", "--frobnicate"}, "time: unknown option --frobnicate"},
            {"time", {"684", "--home"}, "time: --home wants a city"}, {"sun", {}, "sun: name one city"},
            {"cities", {"--frobnicate"}, "cities: unknown option --frobnicate"},
            {"sun", {"C0000", "--date", "2026-02-30"}, "--date wants a calendar date YYYY-MM-DD, got \"2026-02-30\""},
            {"sun", {"C0000", "--when", "today"}, "sun: unexpected \"--when\""}};
    for (const auto& [command, args, message] : cases)
        EXPECT_TRUE(run(command, args).refused(2, message)) << command;
}

TEST_F(CityCommands, TwoCitiesOfOneNameInTwoCountriesAreAmbiguous)
{
    device.write("cities.lst", "h\n2\nx;Twin;Alpha;0;0;0;0;0;0;0;0\nx;Twin;Beta;0;0;0;0;0;0;0;0\n");
    EXPECT_TRUE(run("city", {"twin"}).refused(2, "city:country:\n  0 Twin:Alpha\n  1 Twin:Beta\n"));
}

// With no city and no currency on the device no word could be right: the data is unusable, not the request.
TEST_F(CityCommands, LookupsInAnEmptyStoreAreUnusableData)
{
    device.write("cities.lst", "");
    const std::pair<std::string, std::vector<std::string>> unusable[]
        = {{"time", {"C0000", "--home", "C0001"}}, {"city", {"C0000"}}, {"sun", {"C0000"}}, {"currency", {"1", "EUR"}}};
    for (const auto& [command, args] : unusable)
        EXPECT_TRUE(run(command, args).refused(1, " holds no c")) << command;
}

// What is matched and how it is printed. No dialing-code match is said on the error stream and is no failure;
// each size table is its title, four rows (their texts are checked in the reference tests) and an empty line.
TEST(ReferenceCommands, DialPrintsMatchingRowsTabSeparatedAndSizesEveryMatchingTable)
{
    const std::tuple<std::vector<std::string>, std::string, std::string> cases[]
        = {{{"KOREA"}, "South Korea\t+82\t+9\nNorth Korea\t+850\t+9\n", ""},
            {{"--us", "salt", "lake"}, "Salt Lake City\tUtah(UT)\t+801\n", ""}, // several words are one text
            {{"Atlantis"}, "", "wanderkit dial: no country contains \"Atlantis\"\n"},
            {{"--us", "Gotham"}, "", "wanderkit dial: no city or state contains \"Gotham\"\n"}};
    for (const auto& [args, out, message] : cases)
        EXPECT_EQ(CommandResult::of("dial", args).all(), std::tuple(0, out, message));
    EXPECT_TRUE(CommandResult::of("dial", {"--uk", "london"}).refused(2, "unknown option --uk"));

    const std::tuple<std::vector<std::string>, long, std::string> sizes[] = {
        {{}, 12, "Men's Shirts\nUSA "}, {{"Children"}, 3, "Children's Clothing\n"},
        {{"MEN", "shirts", "and", "sweaters"}, 1, "Men's Shirts\n"}, // a garment's words may come apart
    };
    for (const auto& [args, tables, first] : sizes) {
        const CommandResult r = CommandResult::of("sizes", args);
        EXPECT_EQ(std::tuple(r.code, r.out.substr(0, first.size())), std::tuple(0, first)) << r.err;
        EXPECT_EQ(std::ranges::count(r.out, '\n'), 6 * tables - 1);
    }
    const std::tuple<std::vector<std::string>, std::string> refused[]
        = {{{"kids"}, "unknown wearer \"kids\"; choose one of: Men, Women, Children"},
            {{"children", "suits"}, "unknown garment \"suits\"; choose one of: Shirts and Sweaters, Shoes, Trousers"}};
    for (const auto& [args, error] : refused)
        EXPECT_TRUE(CommandResult::of("sizes", args).refused(2, error));
}

// The conversions themselves are checked in the unit tests: here, how units are found and what is printed.
using UnitCommands = CommandFixture;

TEST_F(UnitCommands, ConvertAndUnitsFindUnitsByNameStartOrCodeAndRefusalsNameWhatIsWrong)
{
    const std::tuple<std::vector<std::string>, std::string> cases[] = {
        {{"1", "ton [SHORT, us]", "KG - KILOGRAM"}, "907.000000\n"}, // names ignore case
        {{"2", "short", "Tonne"}, "1.814369\n"}, // a unique start of a name: "Short" is "Short ton"
        {{"1", "yard", "m - Meter"}, "0.914400\n"}, // "Yard" is in three categories; the other unit picks one
    };
    for (const auto& [args, expected] : cases)
        EXPECT_TRUE(run("convert", args).printed(expected)) << args[1];
    EXPECT_EQ(run("convert", {"-300", "4:0", "K - Kelvin"}).all(), std::tuple(1, "0\n", "Below Absolute Zero\n"));

    // Temperatures have no factor; their list's order is checked in the unit tests.
    EXPECT_TRUE(run("units", {"TEMP"}).out.starts_with("Temperatures\n\u00b0C - Degree Celsius\t-\n"));
    EXPECT_EQ(run("units", {"4"}).out, run("units", {"TEMP"}).out);
    const std::string units = run("units", {}).out;
    EXPECT_EQ(std::ranges::count(units, '\n'), 7 + 126 + 6); // seven titles, 126 units, six empty lines between
    EXPECT_TRUE(units.starts_with("Areas and Surfaces\nyard\t0.83612736\n"));

    const std::tuple<std::string, std::vector<std::string>, std::string> refused[]
        = {{"convert", {"1", "yard", "yard"},
               "\"yard\" names several units; give one of:\n  0:0\tyard (Areas and Surfaces)\n"
               "  1:0\tYard (Lengths and Distances)\n  5:0\tYard (Volumes)\n"},
            {"convert", {"1", "furlong", "m - Meter"}, "no unit is named \"furlong\""},
            {"convert", {"1", "4:5", "4:0"}, "no unit is named \"4:5\""},
            {"convert", {"1", "Mile", "Liter"}, "\"Mile\" and \"Liter\" are not units of one category"},
            {"convert", {"1", "Mile"}, "Usage: wanderkit convert AMOUNT FROM TO"},
            {"convert", {"1", "Mile", "km", "--fast"}, "unknown option --fast"},
            {"units", {"colours"}, "no category \"colours\"; choose 0 to 6 or one of: Areas and Surfaces, "}};
    for (const auto& [command, args, message] : refused)
        EXPECT_TRUE(run(command, args).refused(2, message));
    EXPECT_EQ(std::ranges::count(run("convert", {"1", "yard", "yard"}).err, '\n'), 4); // the same word is listed once
    EXPECT_EQ(std::ranges::count(run("convert", {"1", "yard", "Yard"}).err, '\n'), 8); // different words each
}

// `rates import` rewrites the listed rates and the stamp, or nothing.
TEST_F(CurrencyCommands, CurrencyShowsWhatTheConverterFieldsShowAndRatesImportsOrSaysWhatIsWrong)
{
    // 100 dollars: 100 / 1.25 euros and 100 / 0.0078125 yen; names and codes ignore case.
    EXPECT_TRUE(run("currency", {"100", "usd", "Euro", "jpy"}).printed("EUR\t80.00000000\nJPY\t12800.00000000\n"));

    // Without targets, the converter's three currencies: the positions of US Dollar, Euro, British Pound.
    const std::pair<const char*, const char*> positions[] = {{"curp", "3"}, {"curp2", "1"}, {"curp3", "0"}};
    for (const auto& [name, position] : positions)
        ASSERT_EQ(run("settings", {"set", "Wanderkit\\currencies", name, position}).code, 0);
    EXPECT_TRUE(run("currency", {"10", "JPY"}).printed("USD\t0.07812500\nEUR\t0.06250000\nGBP\t0.05000000\n"));

    const std::tuple<std::string, std::vector<std::string>, std::string> cases[]
        = {{"currency", {"1"}, "give an amount and the currency it is in"},
            {"currency", {"1", "EUR", "USD", "Dollar"}, "unknown currency \"Dollar\""},
            {"rates", {"import", "a", "b"}, "Usage: wanderkit rates [import FILE]"}};
    for (const auto& [command, args, message] : cases)
        EXPECT_TRUE(run(command, args).refused(2, message));

    const auto file = state.write("eurofxref-daily.xml",
        EcbFile("2024-05-17", {{"USD", "1.08"}, {"JPY", "162.5"}, {"ISK", "150"}, {"PLN", "-4.3"}}));
    EXPECT_EQ(run("rates", {"import", file.string()}).all(),
        std::tuple(0, "Rates of 17/5/2024: 3 currencies updated, 1 keep their rates\nNot in the store, left out: ISK\n",
            "wanderkit: rates import: " + file.string()
                + ": skipped PLN: its rate \"-4.3\" is not a positive decimal number\n"));
    // Dollars per euro 1.08: the euro at 1.08, the yen at 1.08 / 162.5; the pound is not listed.
    EXPECT_TRUE(run("rates", {})
                    .printed("GBP\tBritish Pound\t1.5625\nEUR\tEuro\t1.08\nJPY\tJapanese "
                             "Yen\t0.006646153846153847\nUSD\tUS Dollar\t1\nLast update: 17/5/2024 \n"));

    std::istringstream in(EcbFile("2024-05-20", {{"USD", "1.0"}})); // "-" reads standard input
    std::ostringstream out, err;
    EXPECT_EQ(RunRatesCommandWithInput({options(), {"import", "-"}}, in, out, err), 0);
    EXPECT_EQ(out.str(), "Rates of 20/5/2024: 2 currencies updated, 2 keep their rates\n");
    const std::string before = TempDir::read(state.path() / "objectstore.db");

    // A folder, refused by the reader; a day after today and no usable dollar rate, refused by the import.
    const std::pair<std::string, std::string> files[] = {{state.path().string(), "it could not be read"},
        {state.write("late.xml", EcbFile("2024-05-21", {{"USD", "1.1"}})).string(), "lies after today, 2024-05-20"},
        {state.write("bad.xml", EcbFile("2024-05-20", {{"USD", "-1.1"}, {"JPY", "160"}})).string(),
            "no usable USD rate, which the store's rates (US dollars per unit) are worked out from"}};
    for (const auto& [refusedFile, reason] : files) {
        EXPECT_TRUE(run("rates", {"import", refusedFile}).refused(2, reason + "; the store is unchanged\n"));
        EXPECT_EQ(TempDir::read(state.path() / "objectstore.db"), before);
    }
}

TEST_F(FavouritesCommand, RemoveUndoesAddWhichWritesACityOfTheCountryListsAndRefusalsSayWhy)
{
    // A city already a favourite is written again, as the dialog does; one removal leaves one.
    const std::string paris = "Paris\t2988507\t01/01/2000\tFrance\n", rome = "Rome\t3169070\t01/01/2000\tItaly\n";
    EXPECT_EQ(run("favourites", {"add", "Rome"}).out, rome);
    EXPECT_EQ(run("favourites", {"remove", "rome"}).out, rome);
    EXPECT_EQ(run("favourites", {}).out, paris + rome);
    EXPECT_EQ(run("favourites", {"remove", "0"}).out, paris);

    const std::tuple<std::vector<std::string>, int, std::string, std::string> cases[] = {
        // The carriage return before the line feed is no part of the code.
        {{"add", "lyon"}, 0, "Lyon\t2996944\t01/01/2000\tFrance\n", ""},
        {{"add", "New", "York"}, 0, "New York\t5128581\t01/01/2000\tUnited States\n", ""},
        {{"add", "PARIS:united states"}, 0, "Paris\t4717560\t01/01/2000\tUnited States\n", ""},
        {{"add", "Paris"}, 2, "", "say which one as city:country:\n  Paris:France\n  Paris:United States\n"},
        // Nice stands after the line that ends the list.
        {{"add", "Nice"}, 1, "", "no city of the weather country lists is named \"Nice\"\n"},
        {{"add", "york"}, 1, "", "names that contain it: New York:United States\n"},
        {{"add"}, 2, "", "Usage: wanderkit favourites [add CITY | remove FAVOURITE]"},
        {{"rename", "Rome"}, 2, "", "unexpected arguments"},
        {{"remove", "4"}, 1, "", "no favourite is named or numbered \"4\""}, // one past Rome and the three added
    };
    for (const auto& [args, code, out, message] : cases) {
        const CommandResult result = run("favourites", args);
        EXPECT_EQ(std::tie(result.code, result.out), std::tie(code, out)) << args.back();
        EXPECT_NE(result.err.find(message), std::string::npos) << result.err;
    }
}

using SettingsCommand = CommandFixture;

TEST_F(SettingsCommand, GetGivesBackWhatSetStoredAndListsResetsAndRefusals)
{
    // VALUE, --type, what get prints (keys ignore case); -2147483648 is stored as its two's complement, 2^31.
    const std::string koeln = "K\xC3\xB6ln \xF0\x9F\x8C\x8D"; // U+00F6 and U+1F30D
    const std::tuple<std::string, std::string, std::string> stored[]
        = {{"4294967295", "dword", "4294967295"}, {"-2147483648", "dword", "2147483648"}, {koeln, "string", koeln}};
    for (const auto& [value, type, shown] : stored) {
        EXPECT_EQ(run("settings", {"set", "Wanderkit\\currencies", "curval", value, "--type", type}).code, 0);
        EXPECT_TRUE(run("settings", {"get", "WANDERKIT\\Currencies", "curval"}).printed(shown + "\n"));
    }

    ASSERT_EQ(run("settings", {"set", "Wanderkit\\wrldclk", "clock1", "100"}).code, 0);
    // Ordered by key, then name; keys as stored, case-folded.
    EXPECT_TRUE(
        run("settings", {})
            .printed("wanderkit\\currencies\tcurval\tstring\t" + koeln + "\nwanderkit\\wrldclk\tclock1\tdword\t100\n"));
    EXPECT_EQ(run("settings", {"reset"}).code, 0);
    EXPECT_TRUE(run("settings", {"get", "Wanderkit\\wrldclk", "clock1"})
                    .refused(1, "no value \"clock1\" under \"Wanderkit\\wrldclk\""));

    // What cannot be stored is refused, and nothing is.
    for (const std::string value : {"4294967296", "-2147483649", "12abc", ""})
        EXPECT_TRUE(run("settings", {"set", "Wanderkit", "n", value})
                        .refused(2, "wanderkit settings: \"" + value + "\" is not a whole number"));
    const std::pair<std::vector<std::string>, std::string> cases[]
        = {{{"set", "Wanderkit", "n", "1", "--type", "qword"}, "--type wants dword or string, got \"qword\""},
            {{"set", "Wanderkit", "n"}, "set wants KEY NAME VALUE"}, {{"frobnicate"}, "unknown action \"frobnicate\""},
            {{"--verbose"}, "unknown option --verbose"},
            {{"set", std::string(512, '\\'), "n", "1"}, "a key has at most 512 levels of at most 255 characters"},
            {{"set", "Wanderkit\\" + std::string(256, 'k'), "n", "1"}, "a key has at most 512 levels"}};
    for (const auto& [args, message] : cases)
        EXPECT_TRUE(run("settings", args).refused(2, "wanderkit settings: " + message)) << testing::PrintToString(args);
    EXPECT_TRUE(run("settings", {}).printed(""));
}

TEST_F(WeatherCommands, AnImportedForecastIsPrintedDayByDayAndRefusalsChangeNothing)
{
    // From standard input, unnamed: the favourite at the service's grid point nearest Paris (48.85 N 2.35 E).
    std::istringstream input(OpenMeteoFixture::response(5, "2026-11-24", 48.86, 2.34).dump());
    std::streambuf* const saved = std::cin.rdbuf(input.rdbuf());
    const CommandResult imported = run("forecast", {"import", "-"});
    std::cin.rdbuf(saved);
    EXPECT_TRUE(imported.printed("Paris: 5 days from 24/11/2026 to 28/11/2026\n"));
    EXPECT_NE(run("favourites", {}).out.find("\nParis\t2988507\t28/11/2026\tFrance\n"), std::string::npos);
    const std::string week = run("weather", {"Paris"}).out;
    EXPECT_EQ(std::ranges::count(week, '\n'), 5);
    EXPECT_TRUE(week.starts_with(TuesdayLine)) << week;

    // Without a name, the screen's favourite "wetp" (London, Paris, Rome); one past them names no city.
    ASSERT_EQ(run("settings", {"set", "Wanderkit\\weather", "wetp", "1"}).code, 0);
    EXPECT_TRUE(run("weather", {"--day", "1"}).printed(TuesdayLine));
    ASSERT_EQ(run("settings", {"set", "Wanderkit\\weather", "wetp", "99"}).code, 0);
    EXPECT_TRUE(
        run("weather", {}).refused(1, "wanderkit weather: Sorry, Weather Forecast is not available for this City.\n"));

    // A missing file, favourites that are not there and usage errors leave the store untouched.
    const std::string before = TempDir::read(state.path() / "objectstore.db");
    const std::string good = state.write("good.json", OpenMeteoFixture::response(5, "2026-11-25").dump()).string();
    const std::string far = state.write("far.json", OpenMeteoFixture::response(5, "2026-11-24", 45, 7).dump()).string();
    const std::pair<CommandResult, std::string> cases[] = {
        {run("forecast", {"import", (state.path() / "none.json").string()}), "none.json: cannot be read"},
        {run("forecast", {"import", good, "--favourite", "Nowhere"}), "no favourite is named or numbered \"Nowhere\""},
        {run("forecast", {"import", far}), "no favourite city lies at latitude 45, longitude 7"},
        {run("forecast", {"import", "a", "b"}), "one FILE only"},
        {run("forecast", {"import", good, "--favourite"}), "--favourite wants a favourite's name or position"},
        {run("weather", {"--day", "6"}), "--day wants a day from 1 to 5"},
        {run("weather", {"0", "--day"}), "--day wants a day from 1 to 5"},
        {run("weather", {"3"}), "no favourite is named or numbered \"3\""}};
    for (const auto& [result, problem] : cases)
        EXPECT_TRUE(result.refused(2, problem));
    EXPECT_EQ(TempDir::read(state.path() / "objectstore.db"), before);
}
