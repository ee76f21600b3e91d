// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

class DevicePaths;

// A country's weather city list, "\weatcs\<country>" beside the program: lines "City;CODE" ended by
// line feeds, up to the first line that contains ">".
class CountryCityList
{
public:
    // Reads the list; a missing file gives an empty list.
    static CountryCityList read(const DevicePaths& paths, std::wstring_view country);
    // The list held by the bytes of such a file.
    static CountryCityList parse(std::string_view bytes);

    // The city names in file order: each line's text before its first ";".
    const std::vector<std::wstring>& cities() const { return m_cities; }
    // Every line read, each followed by a line feed.
    const std::wstring& text() const { return m_text; }
    // The location code of `city`: the name is looked for in the text, and the code is what follows the
    // next ";" up to the line feed, less a trailing carriage return. Nothing when the name is absent.
    [[nodiscard]] std::optional<std::wstring> codeOf(std::wstring_view city) const;

private:
    std::vector<std::wstring> m_cities;
    std::wstring m_text;
};
