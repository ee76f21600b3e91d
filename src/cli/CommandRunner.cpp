// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/CommandRunner.h"

#include "cli/CityCommands.h"
#include "cli/CurrencyCommands.h"
#include "cli/DialCommand.h"
#include "cli/FavouritesCommand.h"
#include "cli/ForecastCommand.h"
#include "cli/SettingsCommand.h"
#include "cli/SizesCommand.h"
#include "cli/SunCommand.h"
#include "cli/UnitCommands.h"
#include "cli/WeatherCommands.h"

#include <functional>
#include <map>
#include <ostream>
#include <string>

namespace {

using Command = std::function<int(const CommandRequest&, std::ostream&, std::ostream&)>;

// Every text command, by the word that names it on the command line.
const std::map<std::string, Command>& commands()
{
    static const std::map<std::string, Command> table {
        {"cities", RunCitiesCommand},
        {"city", RunCityCommand},
        {"convert", RunConvertCommand},
        {"currency", RunCurrencyCommand},
        {"dial", RunDialCommand},
        {"favourites", RunFavouritesCommand},
        {"forecast", RunForecastCommand},
        {"rates", RunRatesCommand},
        {"settings", RunSettingsCommand},
        {"sizes", RunSizesCommand},
        {"sun", RunSunCommand},
        {"time", RunTimeCommand},
        {"units", RunUnitsCommand},
        {"weather", RunWeatherCommand},
    };
    return table;
}

} // namespace

bool IsCommand(const std::string& name)
{
    return commands().contains(name);
}

int RunCommand(const std::string& name, const CommandRequest& request, std::ostream& out, std::ostream& err)
{
    const auto& table = commands();
    const auto it = table.find(name);
    if (it == table.end()) {
        err << "wanderkit: the command \"" << name << "\" is not available\n";
        return 2;
    }
    return it->second(request, out, err);
}
