// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/UnitLookup.h"

#include "text/StringTable.h"
#include "text/WideText.h"
#include "units/UnitLists.h"

#include <charconv>
#include <optional>

namespace {

std::optional<int> parseIndex(std::string_view text)
{
    int value = 0;
    const auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (text.empty() || ec != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    return value;
}

// "C:I" with both parts whole numbers.
std::optional<UnitPlace> parsePlace(const std::string& word)
{
    const auto colon = word.find(':');
    if (colon == std::string::npos)
        return std::nullopt;
    const auto category = parseIndex(std::string_view(word).substr(0, colon));
    const auto index = parseIndex(std::string_view(word).substr(colon + 1));
    if (!category || !index)
        return std::nullopt;
    return UnitPlace {*category, *index};
}

} // namespace

UnitLookup::UnitLookup(const UnitLists& lists)
    : m_lists(lists)
{ }

std::vector<UnitPlace> UnitLookup::find(const std::string& word) const
{
    if (const auto place = parsePlace(word)) {
        const auto count = m_lists.Names(place->category).size();
        if (place->index >= 0 && static_cast<std::size_t>(place->index) < count)
            return {*place};
        return {};
    }
    auto found = byName(word, false);
    return found.empty() ? byName(word, true) : found;
}

std::vector<UnitPlace> UnitLookup::byName(const std::string& word, bool prefix) const
{
    const std::wstring wanted = FoldLatin1(Utf8ToWide(word));
    std::vector<UnitPlace> found;
    for (int category = 0; category < UnitTables::CategoryCount; ++category) {
        const auto names = m_lists.Names(category);
        for (std::size_t i = 0; i < names.size(); ++i) {
            const std::wstring name = FoldLatin1(names[i]);
            if (prefix ? name.starts_with(wanted) : name == wanted)
                found.push_back({category, static_cast<int>(i)});
        }
    }
    return found;
}

std::string UnitLookup::describe(UnitPlace place) const
{
    const auto names = m_lists.Names(place.category);
    const int titleId = UnitTables::Categories()[static_cast<std::size_t>(place.category)].titleId;
    return WideToUtf8(names[static_cast<std::size_t>(place.index)]) + " (" + WideToUtf8(StringTable::Load(titleId))
        + ")";
}
