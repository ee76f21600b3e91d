// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// Command ids carried by the soft keys, their popup items and the action key.
namespace Commands {

constexpr int Ok = 1; // the action key
constexpr int Exit = 40004;
constexpr int Services = 40008;
constexpr int Done = 40011;
constexpr int TwelveHourClocks = 40022;
constexpr int ShowCitiesOnMap = 40023;
constexpr int UpdateRates = 40024;
constexpr int Clear = 40025;
constexpr int ChangeCurrency = 40026;
constexpr int UpdateForecast = 40027;
constexpr int ChangeCity = 40028;
constexpr int Add = 40030;
constexpr int WeatherForecast = 40034;
constexpr int Undo = 40036;

} // namespace Commands
