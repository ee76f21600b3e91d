// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string_view>
#include <vector>

// The soft-key menu bars of the screens, by bar id: what each key says, its command and its popup.
struct MenuItemSpec
{
    int command = 0; // 0: a separator
    std::wstring_view text;
};

struct SoftKeySpec
{
    int textId = 0; // string table id of the key's text
    int command = 0; // command of a plain key; 0 for a key that opens its popup
    bool enabled = true;
    std::vector<MenuItemSpec> popup;
};

struct MenuBarSpec
{
    int id = 0;
    SoftKeySpec left;
    std::optional<SoftKeySpec> right;
};

namespace MenuBars {

// The bar with the given id; nullptr for an id no screen uses.
const MenuBarSpec* find(int id);

} // namespace MenuBars
