// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/CommandRunner.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <tuple>
#include <vector>

// What a text command printed and returned.
struct CommandResult
{
    int code;
    std::string out;
    std::string err;

    // Runs `command` with `args` on the device `device`.
    static CommandResult of(
        const std::string& command, const std::vector<std::string>& args, const DeviceOptions& device = {})
    {
        std::ostringstream out, err;
        const int code = RunCommand(command, {device, args}, out, err);
        return {code, out.str(), err.str()};
    }

    // The exit code and both streams, copied, to compare whole.
    [[nodiscard]] std::tuple<int, std::string, std::string> all() const { return {code, out, err}; }

    // Done: exit code 0, exactly `expected` printed and nothing on the error stream.
    [[nodiscard]] testing::AssertionResult printed(const std::string& expected) const
    {
        if (code == 0 && out == expected && err.empty())
            return testing::AssertionSuccess();
        return testing::AssertionFailure() << "exit " << code << ", printed\n"
                                           << out << "instead of\n"
                                           << expected << "error text: " << err;
    }

    // Exit code `expected`, nothing printed, and `message` within the error text.
    [[nodiscard]] testing::AssertionResult refused(int expected, const std::string& message) const
    {
        if (code == expected && out.empty() && err.find(message) != std::string::npos)
            return testing::AssertionSuccess();
        return testing::AssertionFailure() << "exit " << code << " (not " << expected << "), printed \"" << out
                                           << "\", error text \"" << err << "\" lacks \"" << message << "\"";
    }
};
