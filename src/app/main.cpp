// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/GuiApplication.h"
#include "app/MapCommand.h"
#include "cli/CommandRunner.h"
#include "cli/StartOptions.h"

#include <iostream>

int main(int argc, char** argv)
{
    std::string error;
    const auto options = StartOptions::parse(std::vector<std::string>(argv + 1, argv + argc), error);
    if (!options) {
        std::cerr << "wanderkit: " << error << "\n\n" << StartOptions::usage();
        return 2;
    }
    if (options->help) {
        std::cout << StartOptions::usage();
        return 0;
    }
    if (options->version) {
        std::cout << "Wanderkit " << WANDERKIT_VERSION << '\n';
        return 0;
    }
    // The map command draws with QtGui, so it is dispatched here rather than among the core's commands.
    if (options->command == "map")
        return RunMapCommand(*options, std::cout, std::cerr);
    if (!options->command.empty())
        return RunCommand(*options, std::cout, std::cerr);
    return GuiApplication(*options).run(argc, argv);
}
