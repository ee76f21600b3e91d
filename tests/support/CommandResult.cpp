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

testing::AssertionResult CommandResult::printed(const std::string& expected) const
{
    if (code == 0 && out == expected && err.empty())
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << "exit " << code << ", printed\n"
                                       << out << "instead of\n"
                                       << expected << "error text: " << err;
}

testing::AssertionResult CommandResult::refused(int expected, const std::string& message) const
{
    if (code == expected && out.empty() && err.find(message) != std::string::npos)
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << "exit " << code << " (not " << expected << "), printed \"" << out
                                       << "\", error text \"" << err << "\" lacks \"" << message << "\"";
}
