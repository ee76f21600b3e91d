// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/CommandRequest.h"

#include <iosfwd>

// `wanderkit favourites`: one line per favourite in store order: name, location code, last update and
// country file, tab-separated.
// `wanderkit favourites add CITY`: adds a city of the weather country lists ("City" or "City:Country") as
// the favourites dialog's ADD does, and prints its line.
// `wanderkit favourites remove FAVOURITE`: removes a favourite named or numbered as `weather` takes it, and
// prints the line it had.
int RunFavouritesCommand(const CommandRequest& request, std::ostream& out, std::ostream& err);
