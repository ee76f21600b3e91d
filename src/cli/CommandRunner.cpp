// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/CommandRunner.h"

#include "cli/CityCommands.h"
#include "cli/DialCommand.h"
#include "cli/SettingsCommand.h"
#include "cli/SizesCommand.h"

#include <functional>
#include <map>
#include <ostream>
#include <string>

namespace {

using Command = std::function<int(const StartOptions&, std::ostream&, std::ostream&)>;

// Every text command, by the word that names it on the command line.
const std::map<std::string, Command>& commands()
{
    static const std::map<std::string, Command> table {
        {"cities", RunCitiesCommand},
        {"city", RunCityCommand},
        {"dial", RunDialCommand},
        {"settings", RunSettingsCommand},
        {"sizes", RunSizesCommand},
        {"time", RunTimeCommand},
    };
    return table;
}

} // namespace

int RunCommand(const StartOptions& options, std::ostream& out, std::ostream& err)
{
    const auto& table = commands();
    const auto it = table.find(options.command);
    if (it == table.end()) {
        err << "wanderkit: the command \"" << options.command << "\" is not available\n";
        return 2;
    }
    return it->second(options, out, err);
}
