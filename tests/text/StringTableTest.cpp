// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/StringTable.h"

#include <gtest/gtest.h>

#include <tuple>

TEST(StringTable, HoldsTheProgramTexts)
{
    const std::tuple<int, std::wstring_view> cases[]
        = {{40003, L"Menu"}, {40039, L"Sorry, Weather Forecast is not available for this City."}, {40047, L"Todo List"},
            {40083, L"Region(State)"}, {40007, L""}, {39999, L""}, {40084, L""}};
    for (const auto& [id, text] : cases)
        EXPECT_EQ(StringTable::Load(id), text) << id;
}
