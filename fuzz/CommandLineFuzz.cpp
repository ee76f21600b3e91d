// SPDX-License-Identifier: GPL-3.0-or-later
// The command line: the run's bytes cut at NUL into arguments, parsed as the program's options and then
// as a command's words.
#include "FuzzInput.h"
#include "app/StartOptions.h"
#include "cli/CommandWords.h"

#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzInput input(data, size);
    std::vector<std::string> args;
    while (!input.empty() && args.size() < 64)
        args.push_back(input.piece());
    std::string error;
    if (const auto options = StartOptions::parse(args, error))
        CommandWords::split(options->commandArgs).joined(1);
    return 0;
}
