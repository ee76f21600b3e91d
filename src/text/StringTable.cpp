// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/StringTable.h"

#include <algorithm>
#include <array>
#include <utility>

namespace {

struct Entry
{
    int id;
    std::wstring_view text;
};

// Kept in ascending id order for the binary search below.
constexpr std::array Strings {
    Entry {40003, L"Menu"},
    Entry {40004, L"Areas and Surfaces"},
    Entry {40005, L"Lengths and Distances"},
    Entry {40006, L"Pressures"},
    Entry {40008, L"World Clocks"},
    Entry {40009, L"World Weather"},
    Entry {40010, L"Services"},
    Entry {40011, L"Sun"},
    Entry {40012, L"Sat"},
    // Monday's label shares the "Done" soft-key text; Mondays read "Done".
    Entry {40013, L"Done"},
    Entry {40014, L"Tue"},
    Entry {40015, L"Wed"},
    Entry {40016, L"Thu"},
    Entry {40017, L"Fri"},
    Entry {40018, L"Initial Cities File not found!"},
    Entry {40020, L"Select City"},
    Entry {40021, L"City Informations"},
    Entry {40022, L"City"},
    Entry {40023, L"Country"},
    Entry {40024, L"Long/Lat"},
    Entry {40025, L"World Map"},
    Entry {40026, L"Daylight Saving"},
    Entry {40027, L"Observing Now"},
    Entry {40028, L"Not observing now"},
    Entry {40029, L"Never observing"},
    Entry {40030, L"DST start/end"},
    Entry {40031, L"Time zone (GMT)"},
    Entry {40032, L"Add"},
    Entry {40033, L"Initial Currencies File not found!"},
    Entry {40034, L"Currency Converter"},
    Entry {40037, L"Select Currency"},
    Entry {40038, L"Real Feel"},
    Entry {40039, L"Sorry, Weather Forecast is not available for this City."},
    Entry {40040, L"Favorites List"},
    Entry {40041, L"This city has been added to the Favorites List."},
    Entry {40044, L"Measurements"},
    Entry {40045, L"Clothing sizes"},
    Entry {40046, L"Dialing codes"},
    Entry {40047, L"Todo List"},
    Entry {40048, L"Speeds"},
    Entry {40049, L"Temperatures"},
    Entry {40050, L"Volumes"},
    Entry {40051, L"Weights and Mass"},
    Entry {40052, L"From:"},
    Entry {40053, L"To:"},
    Entry {40054, L"Convert:"},
    Entry {40055, L"Below Absolute Zero"},
    Entry {40056, L"Bras"},
    Entry {40057, L"Dresses"},
    Entry {40058, L"Shirts and Sweaters"},
    Entry {40059, L"Shoes"},
    Entry {40060, L"Suits"},
    Entry {40061, L"Trousers"},
    Entry {40062, L"Women's Bra Sizes"},
    Entry {40063, L"Men's Shirts"},
    Entry {40064, L"Men's Shoes"},
    Entry {40065, L"Men's Trousers"},
    Entry {40066, L"W's Blouses/Sweaters"},
    Entry {40067, L"Women's Shoes"},
    Entry {40068, L"Women's Trousers"},
    Entry {40069, L"Children's Clothing"},
    Entry {40070, L"Children's Shoes"},
    Entry {40071, L"Children's Trousers"},
    Entry {40072, L"Women's Dresses"},
    Entry {40073, L"Men's Suits"},
    Entry {40075, L"Men"},
    Entry {40076, L"Women"},
    Entry {40077, L"Children"},
    Entry {40078, L"US Area Codes"},
    Entry {40079, L"Canada Area Codes"},
    Entry {40080, L"Code"},
    Entry {40081, L"GMT"},
    Entry {40082, L"International Dialing Codes"},
    Entry {40083, L"Region(State)"},
};

static_assert(std::ranges::is_sorted(Strings, {}, &Entry::id), "string ids must ascend");

} // namespace

std::wstring_view StringTable::Load(int id)
{
    const auto it = std::ranges::lower_bound(Strings, id, {}, &Entry::id);
    return it != Strings.end() && it->id == id ? it->text : std::wstring_view();
}
