// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/StartOptions.h"

#include <iosfwd>

// Runs a text command (`wanderkit cities`, `wanderkit dial` ...) and returns the process exit code:
// 0 done, 1 the state folder or data could not be used, 2 a usage error.
int RunCommand(const StartOptions& options, std::ostream& out, std::ostream& err);
