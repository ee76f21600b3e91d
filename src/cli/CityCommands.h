// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/StartOptions.h"

#include <iosfwd>

// `wanderkit cities [TEXT]`: position, city, country, coordinates, time zone and rule of each city
// whose "city:country" contains TEXT, tab-separated.
int RunCitiesCommand(const StartOptions& options, std::ostream& out, std::ostream& err);
// `wanderkit time CITY... [--home CITY] [--twelve-hour]`: each city's World Clocks time, date, offset,
// observes flag and daylight-saving dates.
int RunTimeCommand(const StartOptions& options, std::ostream& out, std::ostream& err);
// `wanderkit city CITY`: the six lines of the city information panel.
int RunCityCommand(const StartOptions& options, std::ostream& out, std::ostream& err);
