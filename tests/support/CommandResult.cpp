// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandResult.h"

#include <sstream>

CommandResult CommandResult::of(
    const std::string& command, const std::vector<std::string>& args, const DeviceOptions& device)
{
    std::ostringstream out, err;
    const int code = RunCommand(command, {device, args}, out, err);
    return {code, out.str(), err.str()};
}
