// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/StartOptions.h"
#include "cli/CommandRunner.h"
#ifdef WANDERKIT_WITH_GUI
#include "app/GuiApplication.h"
#include "app/MapCommand.h"
#endif

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
#ifdef WANDERKIT_WITH_GUI
    // The map command draws with QtGui, so it is dispatched here rather than among the core's commands.
    if (options->command == "map")
        return RunMapCommand({options->device, options->commandArgs}, std::cout, std::cerr);
#endif
    if (!options->command.empty())
        return RunCommand(options->command, {options->device, options->commandArgs}, std::cout, std::cerr);
#ifdef WANDERKIT_WITH_GUI
    return GuiApplication(*options).run(argc, argv);
#else
    std::cerr << "wanderkit: this build has no window; run one of the commands of wanderkit --help\n";
    return 2;
#endif
}
