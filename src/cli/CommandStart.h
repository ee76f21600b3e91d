// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/CommandRequest.h"
#include "cli/CommandSession.h"

#include <iosfwd>
#include <memory>
#include <optional>
#include <string>
#include <type_traits>
#include <vector>

// The exit codes of the text commands besides 0 (done).
namespace CommandExit {
inline constexpr int Unusable = 1; // the state folder, a state file or the data cannot be used
inline constexpr int UsageError = 2;
} // namespace CommandExit

// How a command that works on the device begins: its words parsed into a `Request`, then the device
// opened. Each step prints its own complaint; `failure` is then the exit code to return.
template<typename Request>
struct CommandStart
{
    std::optional<Request> request;
    std::unique_ptr<CommandSession> session;
    int failure = 0;

    explicit operator bool() const { return session != nullptr; }
};

// `parse(command.args, err)` gives the request, or nothing after printing why; the device is opened only
// for a well-formed request.
template<typename Parse>
[[nodiscard]] auto StartCommand(const CommandRequest& command, std::ostream& err, Parse parse)
{
    using Parsed = std::invoke_result_t<Parse, const std::vector<std::string>&, std::ostream&>;
    CommandStart<typename Parsed::value_type> start;
    start.request = parse(command.args, err);
    if (!start.request)
        start.failure = CommandExit::UsageError;
    else if (!(start.session = CommandSession::open(command, err)))
        start.failure = CommandExit::Unusable;
    return start;
}
