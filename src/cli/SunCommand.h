// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/CommandRequest.h"

#include <iosfwd>

// `wanderkit sun CITY [--date YYYY-MM-DD]`: the sunrise, sunset and day length the World Map shows for
// CITY on that date (default: the device's), and the offset in whole hours they use, tab-separated.
int RunSunCommand(const CommandRequest& request, std::ostream& out, std::ostream& err);
