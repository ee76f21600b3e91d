// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/CommandRequest.h"

#include <iosfwd>
#include <string>

// True when `name` is a text command (`cities`, `dial`, ...).
[[nodiscard]] bool IsCommand(const std::string& name);

// Runs the text command `name` and returns the process exit code: 0 done, 1 the state folder or data
// could not be used, 2 a usage error.
[[nodiscard]] int RunCommand(
    const std::string& name, const CommandRequest& request, std::ostream& out, std::ostream& err);
