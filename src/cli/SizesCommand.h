// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/CommandRequest.h"

#include <iosfwd>

// `wanderkit sizes [WEARER [GARMENT]]`: prints every matching clothing size table, its title and
// its four rows as drawn, tables separated by an empty line. Names match ignoring case; an unknown
// name or option is a usage error (2) that lists the choices.
int RunSizesCommand(const CommandRequest& request, std::ostream& out, std::ostream& err);
