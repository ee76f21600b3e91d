// SPDX-License-Identifier: GPL-3.0-or-later
#include "reference/ClothingSizes.h"

#include <algorithm>
#include <cstddef>

namespace ClothingSizes {
namespace {

// String ids of the wearers and garments.
constexpr int Men = 40075, Women = 40076, Children = 40077;
constexpr int Bras = 40056, Dresses = 40057, ShirtsAndSweaters = 40058, Shoes = 40059, Suits = 40060, Trousers = 40061;

struct Garment
{
    int garmentId;
    Table table;
};

// The women's blouse table borrows this line of the men's suits.
constexpr std::wstring_view SuitsUk = L"UK         30  32  34  36  38  40  42  44  46  48";

constexpr Garment MenGarments[] = {
    {ShirtsAndSweaters,
        {40063,
            {
                L"USA       14  14.5   15   15.5   16  16.5  17  17.5",
                L"Europe  36    37     38    39     41   42    43   44",
                L"UK         14  14.5   15   15.5   16  16.5  17  17.5",
                L"Japan    36    37     38    39     41   42    43   44",
            }}},
    {Shoes,
        {40064,
            {
                L"USA        5     6      7      8      9    10   11   12",
                L"Europe  37   38   39.5  41    42   43  44.5 46",
                L"UK         4      5     6       7      8     9     10   11",
                L"Japan                24.5 25.5 26.5 27.5 28   29",
            }}},
    {Suits,
        {40073,
            {
                L"USA       30  32  34  36  38  40  42  44  46  48",
                L"Europe  40  42  44  46  48  50  52  54  56  58",
                SuitsUk,
                L"Japan   (US/Japan) = 34/S   38/M  40/L  44/LL",
            }}},
    {Trousers,
        {40065,
            {
                L"USA       30    32    34    36    38    40",
                L"Europe  46    48    50    52    54    56",
                L"UK         46    48    52    54    56    58",
                L"Japan   46    48    50    52    54    56",
            }}},
};

constexpr Garment WomenGarments[] = {
    {Bras,
        {40062,
            {
                L"USA         30   32   34   36   38   40   42  44",
                L"Europe    65   70   75   80   85   90   95   100",
                L"France    80   85   90   95   100 105 110 115",
                L"INTL        60   65   70   75   80   85   90   95",
            }}},
    {Dresses,
        {40072,
            {
                L"USA        3   5   7    9   11  12  13  14  15  16  18",
                L"Europe  36 38 38  40  40  42  42  44  44  46  48",
                L"UK          8  10 11  12  13  14  15  16  17  18  20",
                L"Japan     2   4   6    8    9   11  12  13  14  15  17",
            }}},
    {ShirtsAndSweaters,
        {40066,
            {
                L"USA        8  10  12  14  16  18  20  22  24  26",
                L"Europe  36  38  40  42  44  46  48  50  52  54",
                SuitsUk,
                L"Japan    7    9   11   13  15  17  19  21  23  25",
            }}},
    {Shoes,
        {40067,
            {
                L"USA             4      5      6      7      8     9   10",
                L"Europe      35     36    37    38    39   40   41",
                L"UK            2.5   3.5   4.5   5.5   6.5  7.5  8.5",
                L"Japan     21.5  22.5 23.5 24.5  25    26 (rare)",
            }}},
    {Trousers,
        {40068,
            {
                L"USA        8    10    12    14    16    18",
                L"Europe  36    38    40    42    44    46",
                L"UK         10    12    14    16    18    20",
                L"Japan   36    38    40    42    44    46",
            }}},
};

constexpr Garment ChildrenGarments[] = {
    {ShirtsAndSweaters,
        {40069,
            {
                L"USA        2        4        6       8      10       12",
                L"Europe  40      50      60      70      80      90",
                L"UK         16      20      24      28      32      38",
                L"Japan   90     100    110    120    130    140",
            }}},
    {Shoes,
        {40070,
            {
                L"USA          8     9   10   11   12    13     1    2",
                L"Europe    24   25   27   28   29    30   32   33",
                L"UK            7     8     9    10   11    12   13   1",
                L"Japan     15   16 16.5 17.5 18.5 19   20   21",
            }}},
    {Trousers,
        {40071,
            {
                L"USA           2          4           6            8          10",
                L"Europe  40-55    50-55    60-65    70-75    80-85",
                L"UK         16-18    20-22    24-26    28-30    32-34",
                L"Japan      90        100        110        120       130",
            }}},
};

template<std::size_t N>
constexpr std::array<int, N> GarmentIds(const Garment (&garments)[N])
{
    std::array<int, N> ids {};
    std::ranges::transform(garments, ids.begin(), &Garment::garmentId);
    return ids;
}

constexpr std::array WearerIds = {Men, Women, Children};
constexpr std::array MenIds = GarmentIds(MenGarments);
constexpr std::array WomenIds = GarmentIds(WomenGarments);
constexpr std::array ChildrenIds = GarmentIds(ChildrenGarments);

struct Wearer
{
    std::span<const int> garmentIds;
    std::span<const Garment> garments;
};

constexpr Wearer WearerTables[] = {
    {MenIds, MenGarments},
    {WomenIds, WomenGarments},
    {ChildrenIds, ChildrenGarments},
};

const Wearer* FindWearer(int wearer)
{
    return wearer >= 0 && wearer < static_cast<int>(std::size(WearerTables)) ? &WearerTables[wearer] : nullptr;
}

} // namespace

std::span<const int> Wearers()
{
    return WearerIds;
}

std::span<const int> Garments(int wearer)
{
    const Wearer* w = FindWearer(wearer);
    return w ? w->garmentIds : std::span<const int> {};
}

const Table* Find(int wearer, int garment)
{
    const Wearer* w = FindWearer(wearer);
    if (!w || garment < 0 || garment >= static_cast<int>(w->garments.size()))
        return nullptr;
    return &w->garments[garment].table;
}

std::wstring_view Shifted(std::wstring_view row, int shift)
{
    const auto hidden = static_cast<std::size_t>(std::clamp(shift, 0, MaxShift) * ShiftStep);
    return row.substr(std::min(hidden, row.size()));
}

} // namespace ClothingSizes
