// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "astro/TerminatorSun.h"

#include <vector>

// One column of the night side: rows `first` to `last` of map column `column` are darkened.
struct NightSpan
{
    int column = 0;
    int first = -1;
    int last = -1; // -1 when the column holds no night; then it draws nothing

    friend bool operator==(const NightSpan&, const NightSpan&) = default;
};

// The day/night boundary over a map: the night span of each sampled column and the spans drawn.
struct TerminatorColumns
{
    int step = 1; // 1 pixel in March and September, when the boundary is steepest, else 3
    // Columns 0, step, 2 × step, ... while below mapWidth + 2: the first and last row that the night
    // test calls night, scanning rows 0 to mapHeight inclusive. A column without night stores -1 twice.
    std::vector<NightSpan> samples;
    // What is drawn, in column order: each sample, and after it the step - 1 columns up to the next
    // sample, interpolated in integer steps from the previous sample (none after a sample without night).
    std::vector<NightSpan> spans;
};

// The boundary of a map `mapWidth` × `mapHeight` at the Sun's instant, in the month `month` (1 to 12).
// Empty when either size is not positive.
[[nodiscard]] TerminatorColumns ComputeTerminatorColumns(
    const TerminatorSun& sun, int mapWidth, int mapHeight, int month);
