// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

// The World Map's twelve-hour form of a 24-hour text "HH:MM:SS": the hour written with "%d", or "0%d"
// below 10, and a mark appended. 12 keeps 12 and takes "PM", 0 becomes 12 and takes "AM", 13 to 23 lose
// 12 and take " PM", 1 to 11 take " AM": only the last two marks begin with a blank, as the map always
// wrote them.
[[nodiscard]] std::wstring MapTwelveHour(std::wstring_view time24);
