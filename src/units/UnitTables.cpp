// SPDX-License-Identifier: GPL-3.0-or-later
#include "units/UnitTables.h"

#include "text/TabSeparatedRows.h"

#include <array>
#include <vector>

// The unit tables as text, one unit a line: category code, name and factor text, separated by tabs, each
// category's units in table order (unit-tables.tsv, built into the program by src/units/CMakeLists.txt).
// Names and factor texts are kept exactly as the tables were first published, odd entries included:
// "yard" (areas) and "Yard" (volumes) carry the square and cubic yard factors, "Statue Mile (Mile)" is
// 1609, and "Ton [short, US]" has a decimal comma, so wcstod reads it as 907.
std::wstring_view UnitTablesText();

namespace {

// The string ids of the category titles, in category order; a category's code is its index as a digit.
constexpr std::array<int, UnitTables::CategoryCount> TitleIds {40004, 40005, 40006, 40048, 40049, 40050, 40051};

// The tables read once from their text; the categories' rows point into it.
class Tables
{
public:
    Tables()
    {
        for (const auto& [code, name, factor] : TabSeparatedRows<3>(UnitTablesText())) {
            const std::size_t category = code.size() == 1 ? static_cast<std::size_t>(code[0] - L'0') : m_rows.size();
            if (category < m_rows.size())
                m_rows[category].push_back({name, factor});
        }
        for (std::size_t i = 0; i < m_categories.size(); ++i)
            m_categories[i] = {static_cast<wchar_t>(L'0' + i), TitleIds[i], m_rows[i]};
    }

    std::span<const UnitCategory> categories() const { return m_categories; }

private:
    std::array<std::vector<UnitRow>, UnitTables::CategoryCount> m_rows;
    std::array<UnitCategory, UnitTables::CategoryCount> m_categories {};
};

} // namespace

std::span<const UnitCategory> UnitTables::Categories()
{
    static const Tables tables;
    return tables.categories();
}
