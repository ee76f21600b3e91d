// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/CommandRunner.h"

#include <gtest/gtest.h>

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

    // Done: exit code 0, exactly `expected` printed and nothing on the error stream.
    [[nodiscard]] testing::AssertionResult printed(const std::string& expected) const;
    // Exit code `expected`, nothing printed, and `message` within the error text.
    [[nodiscard]] testing::AssertionResult refused(int expected, const std::string& message) const;
};
