// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/CommandRunner.h"

#include <string>
#include <vector>

// What a text command printed and returned.
struct CommandResult
{
    int code;
    std::string out;
    std::string err;

    // Runs `command` with `args` on the device `device`.
    static CommandResult of(
        const std::string& command, const std::vector<std::string>& args, const DeviceOptions& device = {});
};
