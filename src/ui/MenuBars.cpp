// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/MenuBars.h"

#include "ui/Commands.h"

#include <algorithm>
#include <array>

namespace {

constexpr int ServicesText = 40010;
constexpr int MenuText = 40003;
constexpr int DoneText = 40013;
constexpr int AddText = 40032;

const MenuItemSpec Separator {0, {}};
const MenuItemSpec ExitItem {Commands::Exit, L"Exit"};

SoftKeySpec servicesKey(bool enabled = true)
{
    return {ServicesText, Commands::Services, enabled, {}};
}

SoftKeySpec menuKey(std::vector<MenuItemSpec> items)
{
    return {MenuText, 0, true, std::move(items)};
}

const std::vector<MenuBarSpec>& bars()
{
    using namespace Commands;
    static const std::vector<MenuBarSpec> table {
        {101, servicesKey(), menuKey({{TwelveHourClocks, L"Twelve Hours Clocks"}, Separator, ExitItem})},
        {106, {DoneText, Done, true, {}}, std::nullopt},
        {107, servicesKey(false), menuKey({ExitItem})},
        {108, servicesKey(),
            menuKey({{ShowCitiesOnMap, L"Show cities on Map"}, {ChangeCity, L"Change City"},
                {WeatherForecast, L"Weather Forecast"}, Separator, ExitItem})},
        {109, servicesKey(),
            menuKey({{UpdateRates, L"Update rates"}, {Clear, L"Clear"}, {ChangeCurrency, L"Change currency"}, Separator,
                ExitItem})},
        {110, servicesKey(),
            menuKey({{UpdateForecast, L"Update Forecast"}, {ChangeCity, L"Change City"}, Separator, ExitItem})},
        {111, {DoneText, Done, true, {}}, SoftKeySpec {AddText, Add, true, {}}},
        {112, servicesKey(), menuKey({{Undo, L"Undo"}, {Clear, L"Clear"}, Separator, ExitItem})},
    };
    return table;
}

} // namespace

const MenuBarSpec* MenuBars::find(int id)
{
    const auto& table = bars();
    const auto it = std::ranges::find(table, id, &MenuBarSpec::id);
    return it == table.end() ? nullptr : &*it;
}
