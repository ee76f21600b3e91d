// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>
#include <string_view>

// A favourite's stored forecast: five day blocks of twelve text fields, kept in the store as one text
// in which every field is followed by "^".
class ForecastTable
{
public:
    static constexpr int Blocks = 5;
    static constexpr int Fields = 12;

    // Fills block 0 field 0 to 11, then block 1 and so on, each field being the text up to the next "^".
    // A last piece with no "^" after it is not a field; fields not reached stay empty.
    [[nodiscard]] static ForecastTable split(std::wstring_view text);
    // The stored form: all sixty fields in order, each followed by "^".
    [[nodiscard]] std::wstring joined() const;

    // Empty for a block or field outside the table.
    [[nodiscard]] const std::wstring& field(int block, int field) const;
    void setField(int block, int field, std::wstring text);

    friend bool operator==(const ForecastTable&, const ForecastTable&) = default;

private:
    static bool inside(int block, int field);

    std::array<std::array<std::wstring, Fields>, Blocks> m_fields;
};
