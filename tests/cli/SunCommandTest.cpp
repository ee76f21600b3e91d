// SPDX-License-Identifier: GPL-3.0-or-later
#include "CityFixture.h"
#include "CommandResult.h"
#include "TempDir.h"
#include "device/SystemDeviceClock.h"

#include <gtest/gtest.h>

namespace {

// Every fixture city stands at 2.35 E 48.85 N, read as whole degrees 2 and 48.
class SunCommand : public ::testing::Test
{
protected:
    // C0000 (home) on +1 with a European rule; C0684 on -5 with a North American one; C0010 on +5:30.
    void SetUp() override
    {
        CityFixture::write(device, {{0, "1;1;88;2;298;3"}, {684, "-5;1;67;2;305;2"}, {10, "530;0;0;0;0;0"}});
    }

    CommandResult run(const std::vector<std::string>& args, const char* now = "2026-07-13 09:05:00")
    {
        DeviceOptions options;
        options.stateDir = state.path();
        options.deviceRoot = device.path();
        options.now = SystemDeviceClock::parseLocalTime(now);
        return CommandResult::of("sun", args, options);
    }

    TempDir device;
    TempDir state;
};

} // namespace

TEST_F(SunCommand, PrintsTheMapsTimesAndTheOffsetUsed)
{
    struct Case
    {
        std::vector<std::string> args;
        std::string out;
    };
    // Worked with a separate calculator: on 13 July 2026 at 48 N 2 E the Sun rises at 04:07 UTC and
    // sets at 19:47 UTC, 15:40 of day; on 13 January at 07:39 and 16:22, 08:42 of day.
    const Case cases[] = {
        {{"C0000"}, "06:07\t21:47\t15:40\t2\n"}, // +1 with summer time
        {{"684"}, "00:07\t15:47\t15:40\t-4\n"},
        // +5:30 uses 5 hours; the sunset at 24:47 loses 24 hours once.
        {{"C0010"}, "09:07\t00:47\t15:40\t5\n"},
        {{"C0684", "--date", "2026-01-13"}, "02:39\t11:22\t08:42\t-5\n"}, // no summer time in January
        {{"--date=2026-01-13", "C0000:land"}, "08:39\t17:22\t08:42\t1\n"},
        {{"C0000", "--date", "2028-02-29"}, "07:34\t18:33\t10:58\t1\n"},
    };
    for (const Case& c : cases) {
        const CommandResult result = run(c.args);
        EXPECT_EQ(result.code, 0) << result.err;
        EXPECT_EQ(result.out, c.out) << c.args[0];
    }
}

TEST_F(SunCommand, BadRequestsAreUsageErrors)
{
    const std::vector<std::string> bad[] = {
        {},
        {"C0000", "C0001"},
        {"C0000", "--date"},
        {"C0000", "--date", "2026-02-30"},
        {"C0000", "--date", "13/07/2026"},
        {"C0000", "--date", "1500-01-01"},
        {"C0000", "--when", "today"},
        {"Atlantis"},
    };
    for (const auto& args : bad) {
        const CommandResult result = run(args);
        EXPECT_EQ(result.code, 2) << (args.empty() ? "" : args.back());
        EXPECT_EQ(result.out, "");
        EXPECT_FALSE(result.err.empty());
    }
}
