// SPDX-License-Identifier: GPL-3.0-or-later
#include "weather/ForecastTable.h"

#include <gtest/gtest.h>

TEST(ForecastTable, SplitsAtCaretsIntoFiveBlocksOfTwelve)
{
    ForecastTable table;
    for (int block = 0; block < ForecastTable::Blocks; ++block)
        for (int field = 0; field < ForecastTable::Fields; ++field)
            table.setField(block, field, std::to_wstring(block) + L"." + std::to_wstring(field));
    const std::wstring text = table.joined();
    EXPECT_EQ(std::count(text.begin(), text.end(), L'^'), 60);
    EXPECT_TRUE(text.starts_with(L"0.0^0.1^"));
    EXPECT_EQ(ForecastTable::split(text), table);
    // A sixty-first field and more are not read.
    EXPECT_EQ(ForecastTable::split(text + L"extra^more^"), table);

    // Fewer fields leave the rest empty.
    const ForecastTable fewer = ForecastTable::split(L"61^Rain^^3^4^5^6^7^8^9^10^11^13^last");
    EXPECT_EQ(fewer.field(0, 0), L"61");
    EXPECT_EQ(fewer.field(0, 2), L"");
    EXPECT_EQ(fewer.field(0, 11), L"11");
    EXPECT_EQ(fewer.field(1, 0), L"13");
    // The last piece has no "^" after it and is no field.
    EXPECT_EQ(fewer.field(1, 1), L"");
    EXPECT_EQ(fewer.field(4, 11), L"");
    EXPECT_EQ(ForecastTable::split(L"no caret at all"), ForecastTable());
    // Outside the fewer every field is empty and writes go nowhere.
    ForecastTable outside;
    outside.setField(5, 0, L"x");
    outside.setField(0, 12, L"x");
    outside.setField(-1, 0, L"x");
    EXPECT_EQ(outside, ForecastTable());
    EXPECT_EQ(fewer.field(5, 0), L"");
    EXPECT_EQ(fewer.field(0, -1), L"");
}
