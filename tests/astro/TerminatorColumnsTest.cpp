// SPDX-License-Identifier: GPL-3.0-or-later
#include "astro/TerminatorColumns.h"

#include "astro/HorizonArc.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

namespace {

TerminatorSun sunAt(int month, int day, int hour, int minute = 0)
{
    return computeSunForTerminator(
        {2026, std::uint16_t(month), 0, std::uint16_t(day), std::uint16_t(hour), std::uint16_t(minute), 0, 0}, {0, 0});
}

// The first and last night row of a column by asking the night test about every row 0 to mapHeight.
NightSpan bruteForce(const TerminatorSun& sun, int column, int mapWidth, int mapHeight)
{
    NightSpan span {column, -1, -1};
    for (int row = 0; row <= mapHeight; ++row) {
        if (isNight(sun, 180 - column * 360.0 / mapWidth, row, mapHeight)) {
            span.first = span.first == -1 ? row : span.first;
            span.last = row;
        }
    }
    return span;
}

const NightSpan& sampleAt(const TerminatorColumns& columns, int column)
{
    const auto it = std::ranges::find(columns.samples, column, &NightSpan::column);
    EXPECT_NE(it, columns.samples.end()) << column;
    return *it;
}

} // namespace

TEST(TerminatorColumns, SamplesMatchAScanOfEveryRow)
{
    const std::pair<int, int> sizes[] = {{1, 1}, {7, 3}, {240, 138}, {331, 197}};
    // Month, day, hour, minute.
    const std::array<int, 4> instants[]
        = {{1, 5, 3, 17}, {3, 20, 12, 0}, {6, 21, 0, 0}, {9, 23, 7, 10}, {12, 21, 9, 30}};
    for (const auto& [month, day, hour, minute] : instants) {
        const TerminatorSun sun = sunAt(month, day, hour, minute);
        for (const auto& [width, height] : sizes) {
            for (const NightSpan& sample : ComputeTerminatorColumns(sun, width, height, month).samples)
                ASSERT_EQ(sample, bruteForce(sun, sample.column, width, height))
                    << month << '-' << day << ' ' << hour << ':' << minute << ' ' << width << 'x' << height;
        }
    }
}

TEST(TerminatorColumns, ColumnStepExtentAndColumnsWithoutNight)
{
    // Month, map width; the step, the samples, the last sample (the loop runs while x < width + 2), the spans.
    const std::tuple<int, int, int, std::size_t, int, std::size_t> cases[] = {
        {3, 240, 1, 242, 241, 242}, // every column, two beyond the map's right edge
        {4, 240, 3, 81, 240, 241}, // 0, 3, ..., 240, and two interpolated columns after each but the last
        {1, 241, 3, 81, 240, 241}, // 243 is not below 243
        {6, 242, 3, 82, 243, 244},
    };
    for (const auto& [month, width, step, samples, lastSample, spans] : cases) {
        const TerminatorColumns columns = ComputeTerminatorColumns(sunAt(month, 10, 12), width, 138, month);
        EXPECT_EQ(std::tuple(columns.step, columns.samples.size(), columns.samples.back().column, columns.spans.size()),
            std::tuple(step, samples, lastSample, spans))
            << month;
        for (std::size_t i = 0; i < columns.spans.size(); ++i)
            EXPECT_EQ(columns.spans[i].column, static_cast<int>(i)) << month;
    }
    EXPECT_TRUE(ComputeTerminatorColumns(sunAt(6, 1, 0), 0, 138, 6).spans.empty());
    EXPECT_TRUE(ComputeTerminatorColumns(sunAt(6, 1, 0), 240, 0, 6).spans.empty());

    // At the March equinox at noon UTC both poles are in day: the columns around longitude 0 hold no
    // night and store -1, and the antimeridian is night from pole to pole but for the poles themselves.
    const TerminatorColumns march = ComputeTerminatorColumns(sunAt(3, 20, 12), 240, 138, 3);
    for (const int column : {90, 120, 150})
        EXPECT_EQ(sampleAt(march, column), (NightSpan {column, -1, -1}));
    EXPECT_LE(sampleAt(march, 0).first, 2);
    EXPECT_GE(sampleAt(march, 0).last, 136);
}

TEST(TerminatorColumns, InterpolationBetweenThreePixelSamples)
{
    // 10 April 2026 at 12:00 UTC on the 240 x 138 map: the columns between samples follow in whole-row steps
    // of (current - previous) / 3, truncated, and so never pass the next sample.
    const TerminatorColumns columns = ComputeTerminatorColumns(sunAt(4, 10, 12), 240, 138, 4);
    ASSERT_EQ(columns.step, 3);
    for (std::size_t i = 1; i < columns.samples.size(); ++i) {
        const NightSpan& previous = columns.samples[i - 1];
        const NightSpan& current = columns.samples[i];
        for (int k = 1; k < 3; ++k) {
            const NightSpan& between = columns.spans[static_cast<std::size_t>(previous.column + k)];
            EXPECT_EQ(between.first,
                std::clamp(
                    between.first, std::min(previous.first, current.first), std::max(previous.first, current.first)));
            EXPECT_EQ(between.last,
                std::clamp(between.last, std::min(previous.last, current.last), std::max(previous.last, current.last)));
        }
    }
    // Worked pairs, the samples checked against a full scan: night starts on row 73 at column 60 and on 95
    // at 63, an increment of 22 / 3 = 7, so 80 and 87 (rounding would give 88); on 110 at 174 and 97 at 177,
    // -13 / 3 = -4 toward zero, so 106 and 102 (a floor would give 105 and 100). Every span ends on 138.
    const std::pair<int, int> cases[]
        = {{60, 73}, {61, 80}, {62, 87}, {63, 95}, {174, 110}, {175, 106}, {176, 102}, {177, 97}};
    for (const auto& [column, first] : cases)
        EXPECT_EQ(columns.spans[static_cast<std::size_t>(column)], (NightSpan {column, first, 138}));
    for (const int column : {60, 63, 174, 177})
        EXPECT_EQ(sampleAt(columns, column), bruteForce(sunAt(4, 10, 12), column, 240, 138));
}
