// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

// The program's string table (ids 40003 to 40083). Several ids double as command ids of the menus;
// the table holds the texts, the menus hold their own item texts.
namespace StringTable {

// The text of a string id; empty for an id the table does not hold.
std::wstring_view Load(int id);

} // namespace StringTable
