// SPDX-License-Identifier: GPL-3.0-or-later
#include "weather/ForecastTable.h"

ForecastTable ForecastTable::split(std::wstring_view text)
{
    ForecastTable table;
    std::size_t start = 0;
    for (int index = 0; index < Blocks * Fields; ++index) {
        const std::size_t caret = text.find(L'^', start);
        if (caret == std::wstring_view::npos)
            break;
        table.m_fields[static_cast<std::size_t>(index / Fields)][static_cast<std::size_t>(index % Fields)]
            = std::wstring(text.substr(start, caret - start));
        start = caret + 1;
    }
    return table;
}

std::wstring ForecastTable::joined() const
{
    std::wstring text;
    for (const auto& block : m_fields)
        for (const std::wstring& field : block)
            text.append(field).push_back(L'^');
    return text;
}

const std::wstring& ForecastTable::field(int block, int field) const
{
    static const std::wstring none;
    if (!inside(block, field))
        return none;
    return m_fields[static_cast<std::size_t>(block)][static_cast<std::size_t>(field)];
}

void ForecastTable::setField(int block, int field, std::wstring text)
{
    if (inside(block, field))
        m_fields[static_cast<std::size_t>(block)][static_cast<std::size_t>(field)] = std::move(text);
}

bool ForecastTable::inside(int block, int field)
{
    return block >= 0 && block < Blocks && field >= 0 && field < Fields;
}
