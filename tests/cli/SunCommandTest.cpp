// SPDX-License-Identifier: GPL-3.0-or-later
#include "CityFixture.h"
#include "CommandFixture.h"

#include <gtest/gtest.h>

#include <tuple>

namespace {

// Every fixture city stands at 2.35 E 48.85 N, read as whole degrees 2 and 48; C0000 is home.
class SunCommand : public CommandFixture
{
protected:
    void SetUp() override
    {
        now = "2026-07-13 09:05:00";
        CityFixture::write(device, CityFixture::ThreeZones);
    }
};

} // namespace

TEST_F(SunCommand, PrintsTheMapsTimesAndTheOffsetUsed)
{
    // Worked with a separate calculator: on 13 July 2026 at 48 N 2 E the Sun rises at 04:07 UTC and
    // sets at 19:47 UTC, 15:40 of day; on 13 January at 07:39 and 16:22, 08:42 of day.
    const std::tuple<std::vector<std::string>, std::string> cases[] = {
        {{"C0000"}, "06:07\t21:47\t15:40\t2\n"}, // +1 with summer time
        {{"684"}, "00:07\t15:47\t15:40\t-4\n"},
        {{"C0010"}, "09:07\t00:47\t15:40\t5\n"}, // +5:30 uses 5 hours; the sunset at 24:47 loses 24 hours
        {{"C0684", "--date", "2026-01-13"}, "02:39\t11:22\t08:42\t-5\n"}, // no summer time in January
        {{"--date=2026-01-13", "C0000:land"}, "08:39\t17:22\t08:42\t1\n"},
        {{"C0000", "--date", "2028-02-29"}, "07:34\t18:33\t10:58\t1\n"},
    };
    for (const auto& [args, out] : cases)
        EXPECT_TRUE(run("sun", args).printed(out)) << args[0];
}

TEST_F(SunCommand, BadRequestsAreUsageErrors)
{
    const std::vector<std::string> bad[] = {{}, {"C0000", "C0001"}, {"C0000", "--date"},
        {"C0000", "--date", "2026-02-30"}, {"C0000", "--date", "13/07/2026"}, {"C0000", "--date", "1500-01-01"},
        {"C0000", "--when", "today"}, {"Atlantis"}};
    for (const auto& args : bad) {
        const CommandResult result = run("sun", args);
        EXPECT_TRUE(result.refused(2, "")) << testing::PrintToString(args);
        EXPECT_FALSE(result.err.empty());
    }
}
