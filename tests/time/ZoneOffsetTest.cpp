// SPDX-License-Identifier: GPL-3.0-or-later
#include "time/ZoneOffset.h"

#include <gtest/gtest.h>

#include <limits>
#include <tuple>

TEST(ZoneOffset, SplitsAddsShiftsAndReadsTheBias)
{
    // 100 and -100 are still plain hours.
    const std::tuple<ZoneOffset, bool, OffsetParts> splits[] = {{5, false, {5, 0}}, {100, false, {100, 0}},
        {-100, false, {-100, 0}}, {101, true, {1, 1}}, {-101, true, {-1, -1}}, {-330, true, {-3, -30}}};
    for (const auto& [offset, hhmm, parts] : splits) {
        EXPECT_EQ(IsHhmmOffset(offset), hhmm) << offset;
        EXPECT_EQ(SplitZoneOffset(offset), parts) << offset;
    }

    // 100 + 1 lands in the hhmm form; absurd catalogue values wrap at 32 bits instead of overflowing.
    const std::tuple<ZoneOffset, std::int32_t, ZoneOffset> shifts[] = {{530, 1, 630}, {-330, 1, -230}, {-3, 1, -2},
        {100, 1, 101}, {-101, 1, -1}, {530, std::numeric_limits<std::int32_t>::max(), 430}};
    for (const auto& [offset, shift, shifted] : shifts)
        EXPECT_EQ(AddDaylightShift(offset, shift), shifted) << offset << " + " << shift;

    const std::pair<std::int32_t, ZoneOffset> biases[]
        = {{-330, 470}, {210, -270}, {-60, 1}, {0, 0}, {300, -5}, {-345, 455}, {-765, 1155}, {-720, 12}};
    for (const auto& [bias, offset] : biases)
        EXPECT_EQ(BiasZoneOffset(bias), offset) << bias;
}
