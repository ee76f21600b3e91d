// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The string table ids that the screens, their menus and the launcher show, named once for all of them as
// the handheld's resource header named them. The texts live in text/StringTable.cpp.
namespace StringIds {

inline constexpr int Menu = 40003;
inline constexpr int WorldClocks = 40008;
inline constexpr int WorldWeather = 40009;
inline constexpr int Services = 40010;
inline constexpr int Done = 40013;
inline constexpr int SelectCity = 40020;
inline constexpr int CityInformations = 40021;
inline constexpr int City = 40022;
inline constexpr int Country = 40023;
inline constexpr int LongLat = 40024;
inline constexpr int WorldMap = 40025;
inline constexpr int Add = 40032;
inline constexpr int CurrencyConverter = 40034;
inline constexpr int SelectCurrency = 40037;
inline constexpr int RealFeel = 40038;
inline constexpr int ForecastNotAvailable = 40039;
inline constexpr int FavoritesList = 40040;
inline constexpr int AddedToFavorites = 40041;
inline constexpr int Measurements = 40044;
inline constexpr int ClothingSizes = 40045;
inline constexpr int DialingCodes = 40046;
inline constexpr int TodoList = 40047;
inline constexpr int From = 40052;
inline constexpr int To = 40053;
inline constexpr int Convert = 40054;
inline constexpr int BelowAbsoluteZero = 40055;
inline constexpr int UsAreaCodes = 40078;
inline constexpr int Code = 40080;
inline constexpr int Gmt = 40081;
inline constexpr int InternationalDialingCodes = 40082;
inline constexpr int RegionState = 40083;

} // namespace StringIds
