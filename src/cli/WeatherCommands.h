// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/CommandRequest.h"

#include <iosfwd>

// `wanderkit weather [FAVOURITE] [--day N]`: the five days of a favourite's forecast (or day N) as the
// World Weather screen shows them, one tab-separated line a day: day, weekday, icon path, weather, wind,
// temperatures, precipitation, sunrise, sunset, felt temperatures, the day's date and the forecast's date
// (these two only when the forecast does not start today). FAVOURITE is a name
// (any case) or a position; without it, the favourite the screen shows ("wetp").
int RunWeatherCommand(const CommandRequest& request, std::ostream& out, std::ostream& err);
