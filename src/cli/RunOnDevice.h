// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/CommandRequest.h"
#include "cli/CommandSession.h"

#include <iosfwd>

// The exit codes of the text commands besides 0 (done).
namespace CommandExit {
inline constexpr int Unusable = 1; // the state folder, a state file or the data cannot be used
inline constexpr int UsageError = 2;
} // namespace CommandExit

// How a command that works on the device runs: `parse(command.args, err)` gives its request, or nothing
// after printing why (a usage error); the device is then opened (unusable when it cannot be, the reason
// printed) and `body(request, session)` gives the exit code.
template<typename Parse, typename Body>
[[nodiscard]] int RunOnDevice(const CommandRequest& command, std::ostream& err, Parse parse, Body body)
{
    const auto request = parse(command.args, err);
    if (!request)
        return CommandExit::UsageError;
    const auto session = CommandSession::open(command, err);
    if (!session)
        return CommandExit::Unusable;
    return body(*request, *session);
}
