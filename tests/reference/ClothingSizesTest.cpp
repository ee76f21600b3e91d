// SPDX-License-Identifier: GPL-3.0-or-later
#include "reference/ClothingSizes.h"

#include "text/StringTable.h"

#include <gtest/gtest.h>

#include <array>
#include <set>
#include <string_view>
#include <tuple>
#include <vector>

namespace {

std::vector<std::wstring_view> Texts(std::span<const int> ids)
{
    std::vector<std::wstring_view> texts;
    for (const int id : ids)
        texts.push_back(StringTable::Load(id));
    return texts;
}

using Case = std::tuple<int, int, std::wstring_view, std::array<std::wstring_view, 4>>;

// Three tables written out by hand from the printed size charts, to the character.
const Case Tables[] = {
    {0, 1, L"Men's Shoes",
        {{L"USA        5     6      7      8      9    10   11   12", L"Europe  37   38   39.5  41    42   43  44.5 46",
            L"UK         4      5     6       7      8     9     10   11",
            L"Japan                24.5 25.5 26.5 27.5 28   29"}}},
    {1, 3, L"Women's Shoes",
        {{L"USA             4      5      6      7      8     9   10",
            L"Europe      35     36    37    38    39   40   41",
            L"UK            2.5   3.5   4.5   5.5   6.5  7.5  8.5",
            L"Japan     21.5  22.5 23.5 24.5  25    26 (rare)"}}},
    {2, 2, L"Children's Trousers",
        {{L"USA           2          4           6            8          10",
            L"Europe  40-55    50-55    60-65    70-75    80-85",
            L"UK         16-18    20-22    24-26    28-30    32-34",
            L"Japan      90        100        110        120       130"}}},
};

} // namespace

TEST(ClothingSizes, ListsTheWearersAndTheirGarmentsInOrder)
{
    using List = std::vector<std::wstring_view>;
    EXPECT_EQ(Texts(ClothingSizes::Wearers()), (List {L"Men", L"Women", L"Children"}));
    EXPECT_EQ(Texts(ClothingSizes::Garments(0)), (List {L"Shirts and Sweaters", L"Shoes", L"Suits", L"Trousers"}));
    EXPECT_EQ(
        Texts(ClothingSizes::Garments(1)), (List {L"Bras", L"Dresses", L"Shirts and Sweaters", L"Shoes", L"Trousers"}));
    EXPECT_EQ(Texts(ClothingSizes::Garments(2)), (List {L"Shirts and Sweaters", L"Shoes", L"Trousers"}));
    EXPECT_TRUE(ClothingSizes::Garments(-1).empty());
    EXPECT_TRUE(ClothingSizes::Garments(3).empty());
}

TEST(ClothingSizes, HoldsTheTablesAsPrinted)
{
    for (const auto& [wearer, garment, title, rows] : Tables) {
        SCOPED_TRACE(testing::Message() << "wearer " << wearer << ", garment " << garment);
        const ClothingSizes::Table* table = ClothingSizes::Find(wearer, garment);
        ASSERT_NE(table, nullptr);
        EXPECT_EQ(StringTable::Load(table->titleId), title);
        EXPECT_EQ(table->rows, rows);
    }
}

TEST(ClothingSizes, EveryTableNamesItsRegionsInOrderUnderItsOwnTitle)
{
    // Rows compare USA, Europe, the UK (France for bras) and Japan (international sizes for bras).
    std::set<std::wstring_view> titles;
    for (const int wearer : {0, 1, 2}) {
        for (std::size_t garment = 0; garment < ClothingSizes::Garments(wearer).size(); ++garment) {
            const ClothingSizes::Table* table = ClothingSizes::Find(wearer, static_cast<int>(garment));
            ASSERT_NE(table, nullptr);
            EXPECT_TRUE(titles.insert(StringTable::Load(table->titleId)).second);
            const bool bras = wearer == 1 && garment == 0;
            const std::wstring_view regions[]
                = {L"USA ", L"Europe ", bras ? L"France " : L"UK ", bras ? L"INTL " : L"Japan "};
            for (std::size_t row = 0; row < 4; ++row)
                EXPECT_TRUE(table->rows[row].starts_with(regions[row])) << wearer << "/" << garment << ": " << row;
        }
    }
    EXPECT_EQ(titles.size(), 12u);
    // Women's blouses reuse the UK line of men's suits, as the printed chart does.
    EXPECT_EQ(ClothingSizes::Find(1, 2)->rows[2], ClothingSizes::Find(0, 2)->rows[2]);
}

TEST(ClothingSizes, FindsNothingOutsideTheLists)
{
    const std::pair<int, int> outside[] = {{-1, 0}, {3, 0}, {0, -1}, {0, 4}, {1, 5}, {2, 3}};
    for (const auto& [wearer, garment] : outside)
        EXPECT_EQ(ClothingSizes::Find(wearer, garment), nullptr) << wearer << ", " << garment;
}

TEST(ClothingSizes, ShiftHidesTenMoreLeadingCharactersEachStep)
{
    const std::wstring_view shirts = ClothingSizes::Find(0, 0)->rows[0];
    const std::wstring_view japan = ClothingSizes::Find(0, 2)->rows[3];
    const std::tuple<std::wstring_view, int, std::wstring_view> cases[] = {
        {shirts, 0, shirts},
        {shirts, 1, L"14  14.5   15   15.5   16  16.5  17  17.5"},
        {shirts, 2, L" 15   15.5   16  16.5  17  17.5"},
        {japan, 1, L"S/Japan) = 34/S   38/M  40/L  44/LL"},
        {japan, 2, L" 34/S   38/M  40/L  44/LL"},
        // Steps outside 0..2 are held at the nearest end.
        {japan, -1, japan},
        {japan, 3, L" 34/S   38/M  40/L  44/LL"},
        // A row shorter than the hidden part shows nothing.
        {L"UK  12", 1, L""},
    };
    for (const auto& [row, shift, shown] : cases)
        EXPECT_EQ(ClothingSizes::Shifted(row, shift), shown) << "shift " << shift;
}
