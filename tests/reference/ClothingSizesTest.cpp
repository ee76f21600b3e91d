// SPDX-License-Identifier: GPL-3.0-or-later
#include "reference/ClothingSizes.h"

#include "text/StringTable.h"

#include <gtest/gtest.h>

#include <array>
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

// Every table as printed, to the character.
const Case Tables[] = {
    {0, 0, L"Men's Shirts",
        {{L"USA       14  14.5   15   15.5   16  16.5  17  17.5",
            L"Europe  36    37     38    39     41   42    43   44",
            L"UK         14  14.5   15   15.5   16  16.5  17  17.5",
            L"Japan    36    37     38    39     41   42    43   44"}}},
    {0, 1, L"Men's Shoes",
        {{L"USA        5     6      7      8      9    10   11   12", L"Europe  37   38   39.5  41    42   43  44.5 46",
            L"UK         4      5     6       7      8     9     10   11",
            L"Japan                24.5 25.5 26.5 27.5 28   29"}}},
    {0, 2, L"Men's Suits",
        {{L"USA       30  32  34  36  38  40  42  44  46  48", L"Europe  40  42  44  46  48  50  52  54  56  58",
            L"UK         30  32  34  36  38  40  42  44  46  48", L"Japan   (US/Japan) = 34/S   38/M  40/L  44/LL"}}},
    {0, 3, L"Men's Trousers",
        {{L"USA       30    32    34    36    38    40", L"Europe  46    48    50    52    54    56",
            L"UK         46    48    52    54    56    58", L"Japan   46    48    50    52    54    56"}}},
    {1, 0, L"Women's Bra Sizes",
        {{L"USA         30   32   34   36   38   40   42  44", L"Europe    65   70   75   80   85   90   95   100",
            L"France    80   85   90   95   100 105 110 115", L"INTL        60   65   70   75   80   85   90   95"}}},
    {1, 1, L"Women's Dresses",
        {{L"USA        3   5   7    9   11  12  13  14  15  16  18",
            L"Europe  36 38 38  40  40  42  42  44  44  46  48",
            L"UK          8  10 11  12  13  14  15  16  17  18  20",
            L"Japan     2   4   6    8    9   11  12  13  14  15  17"}}},
    // The "UK" line is the one of the men's suits.
    {1, 2, L"W's Blouses/Sweaters",
        {{L"USA        8  10  12  14  16  18  20  22  24  26", L"Europe  36  38  40  42  44  46  48  50  52  54",
            L"UK         30  32  34  36  38  40  42  44  46  48",
            L"Japan    7    9   11   13  15  17  19  21  23  25"}}},
    {1, 3, L"Women's Shoes",
        {{L"USA             4      5      6      7      8     9   10",
            L"Europe      35     36    37    38    39   40   41",
            L"UK            2.5   3.5   4.5   5.5   6.5  7.5  8.5",
            L"Japan     21.5  22.5 23.5 24.5  25    26 (rare)"}}},
    {1, 4, L"Women's Trousers",
        {{L"USA        8    10    12    14    16    18", L"Europe  36    38    40    42    44    46",
            L"UK         10    12    14    16    18    20", L"Japan   36    38    40    42    44    46"}}},
    {2, 0, L"Children's Clothing",
        {{L"USA        2        4        6       8      10       12",
            L"Europe  40      50      60      70      80      90",
            L"UK         16      20      24      28      32      38",
            L"Japan   90     100    110    120    130    140"}}},
    {2, 1, L"Children's Shoes",
        {{L"USA          8     9   10   11   12    13     1    2", L"Europe    24   25   27   28   29    30   32   33",
            L"UK            7     8     9    10   11    12   13   1",
            L"Japan     15   16 16.5 17.5 18.5 19   20   21"}}},
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

TEST(ClothingSizes, HoldsEveryTableAsPrinted)
{
    std::size_t tables = 0;
    for (const int wearer : {0, 1, 2})
        tables += ClothingSizes::Garments(wearer).size();
    EXPECT_EQ(tables, std::size(Tables));

    for (const auto& [wearer, garment, title, rows] : Tables) {
        SCOPED_TRACE(testing::Message() << "wearer " << wearer << ", garment " << garment);
        const ClothingSizes::Table* table = ClothingSizes::Find(wearer, garment);
        ASSERT_NE(table, nullptr);
        EXPECT_EQ(StringTable::Load(table->titleId), title);
        EXPECT_EQ(table->rows, rows);
    }
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
