// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/CommandRequest.h"

#include <iosfwd>

// `wanderkit map FILE.png [--size WxH] [--markers]`: the World Map at the device's instant, drawn at
// the size asked (1024x512 by default, at most 16384 each way) and written as PNG. Opens no window.
int RunMapCommand(const CommandRequest& request, std::ostream& out, std::ostream& err);
