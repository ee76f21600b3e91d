// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <iosfwd>
#include <optional>
#include <string>

class CityCatalogue;

// Finds the city a command-line word names: a catalogue position ("684"), a city name ("Paris") or
// "city:country" ("Paris:France"), names compared without regard to case.
class CityLookup
{
public:
    explicit CityLookup(CityCatalogue& cities);

    // The position, or nothing with a line on `err` saying why: no such position, the nearest names for an
    // unknown name, or the candidates of an ambiguous one.
    [[nodiscard]] std::optional<std::uint32_t> find(const std::string& word, std::ostream& err) const;
    // The exit code after `find` refused a word: a usage error, or unusable data when the catalogue holds no
    // city at all (its data file missing or empty), as then no word could have been right.
    [[nodiscard]] int refusalCode() const;

private:
    std::optional<std::uint32_t> find(const std::string& word, std::string& error) const;
    std::string nearestNames(const std::wstring& wanted) const;

    CityCatalogue& m_cities;
};
