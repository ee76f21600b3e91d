// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "session/DeviceOptions.h"

#include <string>
#include <vector>

// One text command as the command line gave it: the device to work on and the words after the
// command's name.
struct CommandRequest
{
    DeviceOptions device;
    std::vector<std::string> args;
};
