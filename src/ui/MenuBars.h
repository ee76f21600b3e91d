// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string_view>
#include <vector>

// The soft-key menu bars, by the screens that use them.
enum class MenuBarId : int {
    WorldClocks = 101,
    Select = 106,
    Launcher = 107, // also the Dialing codes screen
    Map = 108,
    Currency = 109,
    Weather = 110,
    Favourites = 111,
    Converter = 112, // the Measurements and Clothing sizes screens
};

// What each key of a bar says, its command and its popup.
struct MenuItem
{
    int command = 0; // 0: a separator
    std::wstring_view text;
};

struct SoftKeyLayout
{
    int textId = 0; // string table id of the key's text
    int command = 0; // command of a plain key; 0 for a key that opens its popup
    bool enabled = true;
    std::vector<MenuItem> popup;
};

struct MenuBarLayout
{
    MenuBarId id;
    SoftKeyLayout left;
    std::optional<SoftKeyLayout> right;
};

namespace MenuBars {

// The bar with the given id; nullptr for an id no screen uses.
const MenuBarLayout* find(MenuBarId id);

} // namespace MenuBars
