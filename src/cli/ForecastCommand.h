// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/CommandRequest.h"

#include <iosfwd>

// `wanderkit forecast import FILE [--favourite NAME]`: stores an Open-Meteo daily forecast (FILE "-" is
// standard input) as a favourite's forecast. The favourite is NAME (a name in any case, or a position),
// written by name; without NAME, the favourite whose city lies at the forecast's place, written by its
// location code. A file that is not such a forecast changes nothing and exits with 2.
int RunForecastCommand(const CommandRequest& request, std::ostream& out, std::ostream& err);
