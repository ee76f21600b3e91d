// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "time/ZoneOffset.h"

#include <optional>
#include <string>
#include <string_view>

// The texts of the World Weather screen that do not depend on a whole forecast, shared by the screen
// and the `weather` command.

// A temperature text "high° : low°" in whole degrees Celsius, rebuilt in Fahrenheit: "70° : 55°". A part
// that reads "-" or "N/A" (the part after ":" read past its leading blanks) is kept as it stands.
[[nodiscard]] std::wstring FahrenheitText(std::wstring_view celsius);
// A pair of temperatures "19/11" in whole degrees Celsius, rebuilt in Fahrenheit: "66/52"; a part that
// reads "-" or "N/A" is kept as it stands.
[[nodiscard]] std::wstring FahrenheitPairText(std::wstring_view celsius);

// The icon name of a forecast code: "na" for "N/A" and "-"; otherwise the part before "@" of the first
// ";"-separated entry of the mapping text that contains the code anywhere, and "na" when none does.
[[nodiscard]] std::wstring MappingIconName(std::wstring_view mapping, std::wstring_view code);
// The program path cut at its first backslash (nothing of "\Wanderkit.exe" remains), then the icon folder,
// the icon name and ".bmp".
[[nodiscard]] std::wstring WeatherIconPath(
    std::wstring_view programPath, std::wstring_view iconFolder, std::wstring_view iconName);

// The city line: the favourite's name and " GMT" with the city's offset now ("Paris GMT+1",
// "Delhi GMT+5:30"), or the name alone when the offset is not known.
[[nodiscard]] std::wstring WeatherCityLine(std::wstring_view name, std::optional<ZoneOffset> offset);

// The weekday label of a day of week (0 = Sunday). Monday's label is the string table's "Done".
[[nodiscard]] std::wstring_view WeekdayLabel(int dayOfWeek);
// The day (1 to 5) after a spinner step: a delta of 1 or more goes forward, anything else back, wrapping.
[[nodiscard]] int SteppedDay(int day, int delta);
