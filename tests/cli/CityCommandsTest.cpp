// SPDX-License-Identifier: GPL-3.0-or-later
#include "CityFixture.h"
#include "CommandResult.h"
#include "TempDir.h"
#include "device/SystemDeviceClock.h"

#include <gtest/gtest.h>

#include <tuple>

namespace {

// Each test gets a device root with the fixture catalogue and an empty state folder.
class CityCommands : public ::testing::Test
{
protected:
    // C0000 (home) on +1 with a European rule; C0684 on -5 with a North American one; C0010 on +5:30.
    void SetUp() override
    {
        CityFixture::write(device, {{0, "1;1;88;2;298;3"}, {684, "-5;1;67;2;305;2"}, {10, "530;0;0;0;0;0"}});
    }

    CommandResult run(
        const std::string& command, const std::vector<std::string>& args, const char* now = "2026-07-13 09:05:00")
    {
        DeviceOptions options;
        options.stateDir = state.path();
        options.deviceRoot = device.path();
        options.now = SystemDeviceClock::parseLocalTime(now);
        return CommandResult::of(command, args, options);
    }

    TempDir device;
    TempDir state;
};

} // namespace

TEST_F(CityCommands, CitiesListsTheMatchingCatalogueEntries)
{
    const CommandResult all = run("cities", {});
    EXPECT_EQ(all.code, 0);
    EXPECT_EQ(std::count(all.out.begin(), all.out.end(), '\n'), 1000);
    const CommandResult some = run("cities", {"c068"});
    EXPECT_EQ(some.out.substr(0, some.out.find('\n')), "680\tC0680\tLand\t2.35\t48.85\t0\t0:0:0:0:0");
    EXPECT_NE(some.out.find("684\tC0684\tLand\t2.35\t48.85\t-5\t1:67:2:305:2\n"), std::string::npos);
    EXPECT_EQ(run("cities", {"nowhere"}).out, "");
}

TEST_F(CityCommands, TimeShowsWhatAWorldClockShows)
{
    using Case = std::tuple<std::vector<std::string>, std::string>;
    const Case cases[] = {
        // Device time is the home city's (+2 in July): GMT 07:05.
        {{"684"}, "684\tC0684\t03:05\t13/7 Done\t-4\t1\t8/3/2026\t1/11/2026\n"},
        {{"c0010"}, "10\tC0010\t12:35\t13/7 Done\t530\t0\t-\t-\n"},
        {{"C0684:Land", "--twelve-hour"}, "684\tC0684\t03:05 AM\t13/7 Done\t-4\t1\t8/3/2026\t1/11/2026\n"},
        // A home on GMT moves the device offset: New York is then four hours behind device time.
        {{"684", "--home", "C0001"}, "684\tC0684\t05:05\t13/7 Done\t-4\t1\t8/3/2026\t1/11/2026\n"},
    };
    for (const auto& [args, out] : cases) {
        const CommandResult result = run("time", args);
        EXPECT_EQ(result.code, 0) << result.err;
        EXPECT_EQ(result.out, out);
    }
}

TEST_F(CityCommands, CityPrintsTheInformationPanel)
{
    const CommandResult result = run("city", {"C0684"}, "2026-01-13 12:00:00");
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.out,
        "City: C0684\nCountry: Land\nLong/Lat: 2.35/48.85\nDaylight Saving: Not observing now\n"
        "DST start/end: 8/3/2026-1/11/2026\nTime zone (GMT): -5h\n");
}

TEST_F(CityCommands, UnknownAndAmbiguousCitiesAreUsageErrors)
{
    const CommandResult unknown = run("city", {"C068"});
    EXPECT_EQ(unknown.code, 2);
    EXPECT_NE(unknown.err.find("nearest names are: C0680"), std::string::npos) << unknown.err;
    EXPECT_EQ(run("time", {"4000"}).code, 2);
    EXPECT_EQ(run("time", {}).code, 2);
    EXPECT_EQ(run("time", {"684", "--frobnicate"}).code, 2);
    EXPECT_EQ(run("city", {}).code, 2);

    // Two cities of the same name in two countries.
    TempDir twins;
    twins.write("cities.lst", "h\n2\nx;Twin;Alpha;0;0;0;0;0;0;0;0\nx;Twin;Beta;0;0;0;0;0;0;0;0\n");
    DeviceOptions options;
    options.stateDir = twins.path() / "state";
    options.deviceRoot = twins.path();
    const CommandResult ambiguous = CommandResult::of("city", {"twin"}, options);
    EXPECT_EQ(ambiguous.code, 2);
    EXPECT_NE(ambiguous.err.find("0 Twin:Alpha"), std::string::npos) << ambiguous.err;
    EXPECT_NE(ambiguous.err.find("1 Twin:Beta"), std::string::npos);
    EXPECT_EQ(CommandResult::of("city", {"Twin:Beta"}, options).code, 0);
}
