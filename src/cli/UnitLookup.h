// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

class UnitLists;

// A unit as the Measurements screen lists it: the index of its category in the category list and its
// index in that category's unit list.
struct UnitPlace
{
    int category = 0;
    int index = 0;

    friend bool operator==(const UnitPlace&, const UnitPlace&) = default;
};

// Finds the units a command-line word names: "C:I" (category and unit index), or a unit name as shown,
// compared without regard to case. A word that names no unit exactly names every unit it begins.
class UnitLookup
{
public:
    explicit UnitLookup(const UnitLists& lists);

    // Every unit the word names, in the screen's order; empty when none.
    std::vector<UnitPlace> find(const std::string& word) const;
    // "Yard (Volumes)": the unit's name and its category's title.
    std::string describe(UnitPlace place) const;

private:
    std::vector<UnitPlace> byName(const std::string& word, bool prefix) const;

    const UnitLists& m_lists;
};
