// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <span>
#include <string_view>

// The clothing size tables: for each wearer and garment a title and four ready-formatted rows, one
// per national system. Rows are drawn as they stand and scrolled sideways by whole characters.
namespace ClothingSizes {

struct Table
{
    int titleId; // string id of the title
    std::array<std::wstring_view, 4> rows; // in drawing order
};

inline constexpr int MaxShift = 2;
inline constexpr int ShiftStep = 10; // characters hidden per shift step

// String ids of the wearers ("Men", "Women", "Children"), in list order.
std::span<const int> Wearers();
// String ids of a wearer's garments, in list order; empty for a wearer out of range.
std::span<const int> Garments(int wearer);
// The table of a wearer's garment, both given as list positions; null when either is out of range.
const Table* Find(int wearer, int garment);
// A row scrolled by `shift` steps (clamped to 0..MaxShift), each hiding ShiftStep more leading characters.
std::wstring_view Shifted(std::wstring_view row, int shift);

} // namespace ClothingSizes
