// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/MenuBars.h"

#include "ui/Commands.h"
#include "ui/StringIds.h"

#include <algorithm>
#include <array>

namespace {

const MenuItem Separator {0, {}};
const MenuItem ExitItem {Commands::Exit, L"Exit"};

SoftKeyLayout servicesKey(bool enabled = true)
{
    return {StringIds::Services, Commands::Services, enabled, {}};
}

SoftKeyLayout menuKey(std::vector<MenuItem> items)
{
    return {StringIds::Menu, 0, true, std::move(items)};
}

const std::vector<MenuBarLayout>& bars()
{
    using namespace Commands;
    static const std::vector<MenuBarLayout> table {
        {MenuBarId::WorldClocks, servicesKey(),
            menuKey({{TwelveHourClocks, L"Twelve Hours Clocks"}, Separator, ExitItem})},
        {MenuBarId::Select, {StringIds::Done, Done, true, {}}, std::nullopt},
        {MenuBarId::Launcher, servicesKey(false), menuKey({ExitItem})},
        {MenuBarId::Map, servicesKey(),
            menuKey({{ShowCitiesOnMap, L"Show cities on Map"}, {ChangeCity, L"Change City"},
                {WeatherForecast, L"Weather Forecast"}, Separator, ExitItem})},
        {MenuBarId::Currency, servicesKey(),
            menuKey({{UpdateRates, L"Update rates"}, {Clear, L"Clear"}, {ChangeCurrency, L"Change currency"}, Separator,
                ExitItem})},
        {MenuBarId::Weather, servicesKey(),
            menuKey({{UpdateForecast, L"Update Forecast"}, {ChangeCity, L"Change City"}, Separator, ExitItem})},
        {MenuBarId::Favourites, {StringIds::Done, Done, true, {}}, SoftKeyLayout {StringIds::Add, Add, true, {}}},
        {MenuBarId::Converter, servicesKey(), menuKey({{Undo, L"Undo"}, {Clear, L"Clear"}, Separator, ExitItem})},
    };
    return table;
}

} // namespace

const MenuBarLayout* MenuBars::find(MenuBarId id)
{
    const auto& table = bars();
    const auto it = std::ranges::find(table, id, &MenuBarLayout::id);
    return it == table.end() ? nullptr : &*it;
}
