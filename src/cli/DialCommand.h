// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/CommandRequest.h"

#include <iosfwd>

// `wanderkit dial [TEXT]`: the international rows whose country contains TEXT, as country, shown
// code and GMT, tab-separated. `wanderkit dial --us [TEXT]`: the US area-code rows whose city or state
// contains TEXT, as city, state and code. Matching ignores case; an unknown option is a usage error (2).
int RunDialCommand(const CommandRequest& request, std::ostream& out, std::ostream& err);
