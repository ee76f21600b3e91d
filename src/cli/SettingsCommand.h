// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/CommandRequest.h"

#include <iosfwd>

// `wanderkit settings`: every stored registry value as key, name, type and value, tab-separated.
// `settings get KEY NAME` prints one value (exit 1 when it is missing); `settings set KEY NAME VALUE
// [--type dword|string]` stores one (a number by default, from -2147483648 to 4294967295); `settings
// reset` empties the registry so that the next start writes the defaults. Keys are paths such as
// "Wanderkit\wrldclk" under HKEY_LOCAL_MACHINE, read and written through the screens' accessor.
int RunSettingsCommand(const CommandRequest& request, std::ostream& out, std::ostream& err);
