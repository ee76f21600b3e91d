// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/CityLookup.h"

#include "cli/RunOnDevice.h"
#include "store/CityCatalogue.h"
#include "text/WideText.h"

#include <algorithm>
#include <charconv>
#include <ostream>
#include <vector>

namespace {

std::size_t editDistance(const std::wstring& a, const std::wstring& b)
{
    std::vector<std::size_t> row(b.size() + 1);
    for (std::size_t j = 0; j <= b.size(); ++j)
        row[j] = j;
    for (std::size_t i = 1; i <= a.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = i;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const std::size_t above = row[j];
            row[j] = std::min({row[j] + 1, row[j - 1] + 1, diagonal + (a[i - 1] == b[j - 1] ? 0 : 1)});
            diagonal = above;
        }
    }
    return row[b.size()];
}

std::string describe(CityCatalogue& cities, std::uint32_t position)
{
    return std::to_string(position) + " " + WideToUtf8(cities.CityName(position)) + ":"
        + WideToUtf8(cities.Country(position));
}

} // namespace

CityLookup::CityLookup(CityCatalogue& cities)
    : m_cities(cities)
{ }

std::optional<std::uint32_t> CityLookup::find(const std::string& word, std::string& error) const
{
    const std::uint32_t count = m_cities.Count();
    if (count == 0) {
        error = "the city catalogue holds no city: the device's cities.lst is missing or empty, or the state "
                "could not be written";
        return std::nullopt;
    }
    std::uint32_t position = 0;
    const auto [end, ec] = std::from_chars(word.data(), word.data() + word.size(), position);
    if (ec == std::errc() && end == word.data() + word.size()) {
        if (position < count)
            return position;
        error = "there is no city at position " + word + " (the catalogue holds " + std::to_string(count) + ")";
        return std::nullopt;
    }
    const std::wstring wanted = FoldLatin1(Utf8ToWide(word));
    const bool withCountry = wanted.find(L':') != std::wstring::npos;
    std::vector<std::uint32_t> matches;
    for (std::uint32_t i = 0; i < count; ++i) {
        const std::wstring name = m_cities.CityName(i);
        const std::wstring key = withCountry ? name + L":" + m_cities.Country(i) : name;
        if (FoldLatin1(key) == wanted)
            matches.push_back(i);
    }
    if (matches.size() == 1)
        return matches.front();
    if (matches.empty()) {
        error = "no city is named \"" + word + "\"; the nearest names are: " + nearestNames(wanted);
        return std::nullopt;
    }
    error = "\"" + word + "\" names several cities; say which one, by position or as city:country:";
    for (const std::uint32_t match : matches)
        error += "\n  " + describe(m_cities, match);
    return std::nullopt;
}

std::optional<std::uint32_t> CityLookup::find(const std::string& word, std::ostream& err) const
{
    std::string error;
    const auto position = find(word, error);
    if (!position)
        err << "wanderkit: " << error << '\n';
    return position;
}

int CityLookup::refusalCode() const
{
    return m_cities.Count() == 0 ? CommandExit::Unusable : CommandExit::UsageError;
}

std::string CityLookup::nearestNames(const std::wstring& wanted) const
{
    std::vector<std::pair<std::size_t, std::uint32_t>> ranked;
    const std::uint32_t count = m_cities.Count();
    // Edits are counted on the word's first 64 characters, more than any city's name has, so that a
    // pasted page costs what a name does (128 KB took over a second).
    const std::wstring head = wanted.substr(0, 64);
    // Names that contain the word come first, then the names fewest edits away.
    for (std::uint32_t i = 0; i < count; ++i) {
        const std::wstring name = FoldLatin1(m_cities.CityName(i));
        const bool contains = name.find(wanted) != std::wstring::npos;
        ranked.emplace_back(contains ? 0 : 1 + editDistance(head, name), i);
    }
    const std::size_t shown = std::min<std::size_t>(5, ranked.size());
    std::partial_sort(ranked.begin(), ranked.begin() + static_cast<std::ptrdiff_t>(shown), ranked.end());
    std::string names;
    for (std::size_t k = 0; k < shown; ++k)
        names += (k ? ", " : "") + WideToUtf8(m_cities.CityName(ranked[k].second));
    return names;
}
