// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/CommandRequest.h"

#include <iosfwd>

// `wanderkit cities [TEXT]`: position, city, country, coordinates, time zone and rule of each city
// whose "city:country" contains TEXT, tab-separated.
int RunCitiesCommand(const CommandRequest& request, std::ostream& out, std::ostream& err);
// `wanderkit time CITY... [--home CITY] [--twelve-hour]`: each city's World Clocks time, date, offset,
// observes flag and daylight-saving dates.
int RunTimeCommand(const CommandRequest& request, std::ostream& out, std::ostream& err);
// `wanderkit city CITY`: the six lines of the city information panel.
int RunCityCommand(const CommandRequest& request, std::ostream& out, std::ostream& err);
