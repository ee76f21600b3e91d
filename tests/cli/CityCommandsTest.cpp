// SPDX-License-Identifier: GPL-3.0-or-later
#include "CityFixture.h"
#include "CommandFixture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

namespace {

// The fixture catalogue with C0000 as home, on +1 with a European rule, and C0684 on -5 with a North
// American one; the time and sun arithmetic is checked in the time and astro tests.
class CityCommands : public CommandFixture
{
protected:
    void SetUp() override
    {
        now = "2026-07-13 09:05:00";
        CityFixture::write(device, {{0, "1;1;88;2;298;3"}, {684, "-5;1;67;2;305;2"}});
    }
};

} // namespace

TEST_F(CityCommands, CitiesListsTheMatchingCatalogueEntries)
{
    EXPECT_EQ(std::ranges::count(run("cities", {}).out, '\n'), 1000);
    EXPECT_TRUE(run("cities", {"c0684"}).printed("684\tC0684\tLand\t2.35\t48.85\t-5\t1:67:2:305:2\n"));
    EXPECT_TRUE(run("cities", {"nowhere"}).printed(""));
}

TEST_F(CityCommands, TimeCityAndSunShowWhatTheScreensShow)
{
    // With a home on GMT, device time is GMT 09:05 and New York, on summer time, four hours behind.
    EXPECT_TRUE(run("time", {"684", "--twelve-hour", "--home", "C0001"})
                    .printed("684\tC0684\t05:05 AM\t13/7 Done\t-4\t1\t8/3/2026\t1/11/2026\n"));
    EXPECT_TRUE(run("city", {"C0684"}, "2026-01-13 12:00:00")
                    .printed("City: C0684\nCountry: Land\nLong/Lat: 2.35/48.85\nDaylight Saving: Not observing now\n"
                             "DST start/end: 8/3/2026-1/11/2026\nTime zone (GMT): -5h\n"));

    // `sun` prints the map's times and the offset used. Every fixture city stands at 2.35 E 48.85 N, read as
    // whole degrees 2 and 48. Worked with a separate calculator: there the Sun rises at 04:07 UTC and sets at
    // 19:47 UTC on 13 July 2026, 15:40 of day; on 13 January at 07:39 and 16:22, 08:42 of day.
    EXPECT_TRUE(run("sun", {"C0000"}).printed("06:07\t21:47\t15:40\t2\n")); // +1 with summer time
    EXPECT_TRUE(run("sun", {"--date=2026-01-13", "C0000:land"}).printed("08:39\t17:22\t08:42\t1\n"));
}

TEST_F(CityCommands, UnknownCitiesAndBadRequestsAreUsageErrors)
{
    const std::tuple<std::string, std::vector<std::string>, std::string> cases[]
        = {{"city", {"C068"}, "nearest names are: C0680"}, {"time", {"4000"}, ""},
            {"time", {"684", "--frobnicate"}, "time: unknown option --frobnicate"}, {"sun", {}, "sun: name one city"},
            {"sun", {"C0000", "--date", "2026-02-30"}, "--date wants a calendar date YYYY-MM-DD, got \"2026-02-30\""},
            {"sun", {"C0000", "--when", "today"}, "sun: unexpected \"--when\""}};
    for (const auto& [command, args, message] : cases)
        EXPECT_TRUE(run(command, args).refused(2, message)) << command;
}

TEST_F(CityCommands, TwoCitiesOfOneNameInTwoCountriesAreAmbiguous)
{
    device.write("cities.lst", "h\n2\nx;Twin;Alpha;0;0;0;0;0;0;0;0\nx;Twin;Beta;0;0;0;0;0;0;0;0\n");
    EXPECT_TRUE(run("city", {"twin"}).refused(2, "city:country:\n  0 Twin:Alpha\n  1 Twin:Beta\n"));
    EXPECT_EQ(run("city", {"Twin:Beta"}).code, 0);
}
