// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>
#include <vector>

// The rows of a tab-separated table, one row a line (the last line may end without a line feed). Each
// row has `Columns` fields: a missing field reads empty, fields beyond are ignored. The views point into
// `text`, which must outlive them (the tables built into the program do).
template<std::size_t Columns>
[[nodiscard]] std::vector<std::array<std::wstring_view, Columns>> TabSeparatedRows(std::wstring_view text)
{
    // The text up to `separator`, taken off the front of `rest` with the separator itself.
    const auto takeUntil = [](std::wstring_view& rest, wchar_t separator) {
        const std::size_t end = std::min(rest.find(separator), rest.size());
        const std::wstring_view taken = rest.substr(0, end);
        rest.remove_prefix(std::min(end + 1, rest.size()));
        return taken;
    };
    std::vector<std::array<std::wstring_view, Columns>> rows;
    while (!text.empty()) {
        std::wstring_view line = takeUntil(text, L'\n');
        for (std::wstring_view& field : rows.emplace_back())
            field = takeUntil(line, L'\t');
    }
    return rows;
}
