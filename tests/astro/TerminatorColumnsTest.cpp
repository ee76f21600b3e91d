// SPDX-License-Identifier: GPL-3.0-or-later
#include "astro/TerminatorColumns.h"

#include "astro/HorizonArc.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

TerminatorSun sunAt(int month, int day, int hour, int minute = 0)
{
    return computeSunForTerminator({2026, static_cast<std::uint16_t>(month), 0, static_cast<std::uint16_t>(day),
                                       static_cast<std::uint16_t>(hour), static_cast<std::uint16_t>(minute), 0, 0},
        {0, 0});
}

// The first and last night row of a column by asking the night test about every row 0 to mapHeight.
NightSpan bruteForce(const TerminatorSun& sun, int column, int mapWidth, int mapHeight)
{
    const double lonW = 180 - column * 360.0 / mapWidth;
    NightSpan span {column, -1, -1};
    for (int row = 0; row <= mapHeight; ++row) {
        if (!isNight(sun, lonW, row, mapHeight))
            continue;
        if (span.first == -1)
            span.first = row;
        span.last = row;
    }
    return span;
}

const NightSpan& sampleAt(const TerminatorColumns& columns, int column)
{
    const auto it = std::find_if(
        columns.samples.begin(), columns.samples.end(), [column](const NightSpan& s) { return s.column == column; });
    EXPECT_NE(it, columns.samples.end()) << column;
    return *it;
}

} // namespace

TEST(TerminatorColumns, SamplesMatchAScanOfEveryRow)
{
    struct Size
    {
        int width;
        int height;
    };
    const Size sizes[] = {{1, 1}, {2, 1}, {7, 3}, {240, 138}, {268, 75}, {331, 197}, {1024, 512}};
    struct Instant
    {
        int month, day, hour, minute;
    };
    const Instant instants[] = {{1, 5, 3, 17}, {3, 20, 12, 0}, {3, 21, 23, 59}, {5, 1, 6, 30}, {6, 21, 0, 0},
        {8, 15, 18, 45}, {9, 23, 7, 10}, {11, 2, 14, 2}, {12, 21, 9, 30}};
    for (const Instant& at : instants) {
        const TerminatorSun sun = sunAt(at.month, at.day, at.hour, at.minute);
        for (const Size& size : sizes) {
            const TerminatorColumns columns = ComputeTerminatorColumns(sun, size.width, size.height, at.month);
            for (const NightSpan& sample : columns.samples)
                ASSERT_EQ(sample, bruteForce(sun, sample.column, size.width, size.height))
                    << at.month << '-' << at.day << ' ' << at.hour << ':' << at.minute << ' ' << size.width << 'x'
                    << size.height;
        }
    }
}

TEST(TerminatorColumns, ColumnStepAndExtent)
{
    struct Case
    {
        int month;
        int width;
        int step;
        std::size_t samples;
        int lastSample; // the loop runs while x < width + 2
        std::size_t spans;
    };
    const Case cases[] = {
        {3, 240, 1, 242, 241, 242}, // every column, two beyond the map's right edge
        {9, 240, 1, 242, 241, 242},
        {4, 240, 3, 81, 240, 241}, // 0, 3, ..., 240, and two interpolated columns after each but the last
        {12, 239, 3, 81, 240, 241}, // 240 < 239 + 2
        {1, 241, 3, 81, 240, 241}, // 243 is not below 243
        {6, 242, 3, 82, 243, 244},
    };
    for (const Case& c : cases) {
        const TerminatorColumns columns = ComputeTerminatorColumns(sunAt(c.month, 10, 12), c.width, 138, c.month);
        EXPECT_EQ(columns.step, c.step) << c.month;
        EXPECT_EQ(columns.samples.size(), c.samples) << c.month;
        EXPECT_EQ(columns.samples.back().column, c.lastSample) << c.month;
        EXPECT_EQ(columns.spans.size(), c.spans) << c.month;
        for (std::size_t i = 0; i < columns.spans.size(); ++i)
            EXPECT_EQ(columns.spans[i].column, static_cast<int>(i)) << c.month;
    }
    EXPECT_TRUE(ComputeTerminatorColumns(sunAt(6, 1, 0), 0, 138, 6).spans.empty());
    EXPECT_TRUE(ComputeTerminatorColumns(sunAt(6, 1, 0), 240, 0, 6).spans.empty());
}

TEST(TerminatorColumns, PolarDayAndPolarNightColumns)
{
    const int width = 240;
    const int height = 138;
    // June: the south pole is in night in every column, so each span ends on row mapHeight, one row past
    // the picture; the north pole never is.
    for (const NightSpan& s : ComputeTerminatorColumns(sunAt(6, 21, 6), width, height, 6).samples) {
        EXPECT_EQ(s.last, height) << s.column;
        EXPECT_GT(s.first, 0) << s.column;
    }
    // December: the other way round.
    for (const NightSpan& s : ComputeTerminatorColumns(sunAt(12, 21, 18), width, height, 12).samples) {
        EXPECT_EQ(s.first, 0) << s.column;
        EXPECT_LT(s.last, height) << s.column;
    }
    // At the March equinox at noon UTC both poles are in day: the columns around longitude 0 hold no
    // night and store -1, and the antimeridian is night from pole to pole but for the poles themselves.
    const TerminatorColumns march = ComputeTerminatorColumns(sunAt(3, 20, 12), width, height, 3);
    for (const int column : {90, 120, 150})
        EXPECT_EQ(sampleAt(march, column), (NightSpan {column, -1, -1}));
    EXPECT_LE(sampleAt(march, 0).first, 2);
    EXPECT_GE(sampleAt(march, 0).last, height - 2);
}

TEST(TerminatorColumns, InterpolationBetweenThreePixelSamples)
{
    // 10 April 2026 at 12:00 UTC on the 240 x 138 map. The samples are checked against a full scan above;
    // here the columns between them follow in whole-row steps of (current - previous) / 3, truncated.
    const TerminatorColumns columns = ComputeTerminatorColumns(sunAt(4, 10, 12), 240, 138, 4);
    ASSERT_EQ(columns.step, 3);
    for (std::size_t i = 1; i < columns.samples.size(); ++i) {
        const NightSpan& previous = columns.samples[i - 1];
        const NightSpan& current = columns.samples[i];
        for (int k = 1; k < 3; ++k) {
            const NightSpan& between = columns.spans[static_cast<std::size_t>(previous.column + k)];
            // Whole steps toward the next sample never pass it.
            EXPECT_GE(between.first, std::min(previous.first, current.first)) << between.column;
            EXPECT_LE(between.first, std::max(previous.first, current.first)) << between.column;
            EXPECT_GE(between.last, std::min(previous.last, current.last)) << between.column;
            EXPECT_LE(between.last, std::max(previous.last, current.last)) << between.column;
        }
    }
    // Worked pairs, the samples checked against a full scan: night starts on row 73 at column 60 and on 95
    // at 63, an increment of 22 / 3 = 7, so 80 and 87 (rounding would give 88); on 110 at 174 and 97 at 177,
    // -13 / 3 = -4 toward zero, so 106 and 102 (a floor would give 105 and 100). Every span ends on 138.
    const TerminatorSun sun = sunAt(4, 10, 12);
    struct Case
    {
        int column;
        int first;
    };
    const Case cases[] = {{60, 73}, {61, 80}, {62, 87}, {63, 95}, {174, 110}, {175, 106}, {176, 102}, {177, 97}};
    for (const Case& c : cases)
        EXPECT_EQ(columns.spans[static_cast<std::size_t>(c.column)], (NightSpan {c.column, c.first, 138}));
    for (const int column : {60, 63, 174, 177})
        EXPECT_EQ(sampleAt(columns, column), bruteForce(sun, column, 240, 138));
}
