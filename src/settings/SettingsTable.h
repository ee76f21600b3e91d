// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "settings/RegistrySettings.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

// When a read that missed writes its default back.
enum class WriteBack {
    Never,
    WhenMissing, // the value or its key was missing (status -1 or -2)
    WhenKeyMissing, // only the key was missing (status -2)
};

// A row of the settings table: where a value lives (always under HKEY_LOCAL_MACHINE), its default and
// its write-back rule. The C++ type of the row is the value's stored type.
struct DwordSetting
{
    std::wstring_view subkey;
    std::wstring_view name;
    std::uint32_t fallback;
    WriteBack writeBack;
};

struct StringSetting
{
    std::wstring_view subkey;
    std::wstring_view name;
    std::wstring_view fallback;
    WriteBack writeBack;
};

// Every registry value the program uses; screens name these rows instead of spelling keys.
namespace Settings {

inline constexpr std::wstring_view AppKey = L"Wanderkit";
inline constexpr std::wstring_view WorldClockKey = L"Wanderkit\\wrldclk";
inline constexpr std::wstring_view WeatherKey = L"Wanderkit\\weather";
inline constexpr std::wstring_view MapKey = L"Wanderkit\\map";
inline constexpr std::wstring_view CurrenciesKey = L"Wanderkit\\currencies";
inline constexpr std::wstring_view MeasuresKey = L"Wanderkit\\measurs";
inline constexpr std::wstring_view ClothesKey = L"Wanderkit\\cloths";
inline constexpr std::wstring_view InstallKey = L"SOFTWARE\\Apps\\Quillstone Wanderkit";

inline constexpr DwordSetting TwelveHour {AppKey, L"twelvehour", 0, WriteBack::Never};
inline constexpr DwordSetting HomeClock {WorldClockKey, L"clock", 0, WriteBack::WhenKeyMissing};
inline constexpr DwordSetting Clock1 {WorldClockKey, L"clock1", 684, WriteBack::WhenKeyMissing};
inline constexpr DwordSetting Clock2 {WorldClockKey, L"clock2", 756, WriteBack::WhenKeyMissing};
inline constexpr DwordSetting Clock3 {WorldClockKey, L"clock3", 565, WriteBack::WhenKeyMissing};
inline constexpr DwordSetting Clock4 {WorldClockKey, L"clock4", 988, WriteBack::WhenKeyMissing};
// The five clocks' cities in slot order, the home city first.
inline constexpr std::array<const DwordSetting*, 5> ClockCities {&HomeClock, &Clock1, &Clock2, &Clock3, &Clock4};
inline constexpr DwordSetting SyncLocalZone {WorldClockKey, L"syncltz", 1, WriteBack::WhenMissing};
// The World Clocks screen writes the home city here itself when the value is missing.
inline constexpr DwordSetting WeatherPosition {WeatherKey, L"wetp", 0, WriteBack::Never};
inline constexpr StringSetting IconFolder {WeatherKey, L"icondir", L"\\wiconset\\", WriteBack::Never};
inline constexpr DwordSetting MapClock {MapKey, L"mapclock", 0, WriteBack::Never};
inline constexpr DwordSetting ShowCities {MapKey, L"showcs", 1, WriteBack::Never};
inline constexpr DwordSetting Currency1 {CurrenciesKey, L"curp", 61, WriteBack::WhenMissing};
inline constexpr DwordSetting Currency2 {CurrenciesKey, L"curp2", 180, WriteBack::WhenMissing};
inline constexpr DwordSetting Currency3 {CurrenciesKey, L"curp3", 27, WriteBack::WhenMissing};
inline constexpr StringSetting CurrencyAmount {CurrenciesKey, L"curval", L"", WriteBack::Never};
inline constexpr DwordSetting MeasureType {MeasuresKey, L"type", 0, WriteBack::Never};
inline constexpr DwordSetting MeasureUnit1 {MeasuresKey, L"unit1", 0, WriteBack::Never};
inline constexpr DwordSetting MeasureUnit2 {MeasuresKey, L"unit2", 0, WriteBack::Never};
inline constexpr StringSetting MeasureValue {MeasuresKey, L"convval", L"", WriteBack::Never};
inline constexpr DwordSetting ClothesWho {ClothesKey, L"who", 0, WriteBack::Never};
inline constexpr DwordSetting ClothesKind {ClothesKey, L"cloth", 0, WriteBack::Never};
// Written by the installer, only read here; missing means the root folder.
inline constexpr StringSetting InstallDir {InstallKey, L"InstallDir", L"", WriteBack::Never};

} // namespace Settings

// Reads a row's value; on a miss gives its default, written back when its rule says so.
// `settings.Status()` still tells the status of the read afterwards.
std::uint32_t ReadSetting(RegistrySettings& settings, const DwordSetting& setting);
std::wstring ReadSetting(RegistrySettings& settings, const StringSetting& setting);
void WriteSetting(RegistrySettings& settings, const DwordSetting& setting, std::uint32_t value);
void WriteSetting(RegistrySettings& settings, const StringSetting& setting, std::wstring_view text);
