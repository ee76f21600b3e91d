// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandResult.h"

#include <sstream>

CommandResult CommandResult::of(const std::string& command, const std::vector<std::string>& args, StartOptions options)
{
    options.command = command;
    options.commandArgs = args;
    std::ostringstream out, err;
    const int code = RunCommand(options, out, err);
    return {code, out.str(), err.str()};
}
