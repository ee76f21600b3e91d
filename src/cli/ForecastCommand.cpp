// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/ForecastCommand.h"

#include "cli/CommandSession.h"
#include "cli/CommandWords.h"
#include "cli/FavouriteLookup.h"
#include "store/WeatherFavourites.h"
#include "text/WideText.h"
#include "weather/OpenMeteoForecast.h"

#include <fstream>
#include <iostream>
#include <iterator>

namespace {

constexpr int Unusable = 1;
constexpr int UsageError = 2;
constexpr const char* ForecastUsage
    = "Usage: wanderkit forecast import FILE [--favourite NAME]   (FILE - reads standard input)\n";

struct ImportRequest
{
    std::string file;
    std::string favourite; // empty: the favourite at the forecast's place
};

std::optional<ImportRequest> parseImportRequest(const std::vector<std::string>& args, std::ostream& err)
{
    ImportRequest request;
    bool haveFile = false;
    for (std::size_t i = 1; i < args.size(); ++i) {
        if (auto name = CommandWords::optionValue(args, i, "--favourite")) {
            if (name->empty())
                return err << "wanderkit forecast: --favourite wants a favourite's name or position\n"
                           << ForecastUsage,
                       std::nullopt;
            request.favourite = std::move(*name);
        } else if (args[i] != "-" && args[i].starts_with("-"))
            return err << "wanderkit forecast: unknown option " << args[i] << '\n' << ForecastUsage, std::nullopt;
        else if (haveFile)
            return err << "wanderkit forecast: one FILE only\n" << ForecastUsage, std::nullopt;
        else
            request.file = args[i], haveFile = true;
    }
    if (args.empty() || args[0] != "import" || !haveFile)
        return err << ForecastUsage, std::nullopt;
    return request;
}

// At most one byte more than a forecast may hold, so that an oversized file is seen as such.
std::optional<std::string> readInput(const std::string& file)
{
    std::ifstream opened;
    std::istream* in = &std::cin;
    if (file != "-") {
        opened.open(file, std::ios::binary);
        if (!opened)
            return std::nullopt;
        in = &opened;
    }
    std::string bytes(OpenMeteoForecast::MaxBytes + 1, '\0');
    in->read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (in->bad())
        return std::nullopt;
    bytes.resize(static_cast<std::size_t>(in->gcount()));
    return bytes;
}

// The favourite to write; prints why when there is none.
std::optional<std::uint32_t> targetFavourite(CommandSession& session, WeatherFavourites& favourites,
    const ImportRequest& request, const OpenMeteoForecast& forecast, std::ostream& err)
{
    if (!request.favourite.empty()) {
        const auto found = FindFavourite(favourites, request.favourite);
        if (!found)
            err << "wanderkit forecast: no favourite is named or numbered \"" << request.favourite
                << "\" (see wanderkit favourites)\n";
        return found;
    }
    if (!forecast.latitude() || !forecast.longitude()) {
        err << "wanderkit forecast: the forecast does not say where it is; name the favourite with --favourite\n";
        return std::nullopt;
    }
    const auto near = FavouriteNear(favourites, session.cities(), *forecast.latitude(), *forecast.longitude());
    if (!near)
        err << "wanderkit forecast: no favourite city lies at latitude " << *forecast.latitude() << ", longitude "
            << *forecast.longitude() << "; name the favourite with --favourite\n";
    return near;
}

} // namespace

int RunForecastCommand(const CommandRequest& request, std::ostream& out, std::ostream& err)
{
    const auto wanted = parseImportRequest(request.args, err);
    if (!wanted)
        return UsageError;
    const auto bytes = readInput(wanted->file);
    const std::string shownName = wanted->file == "-" ? "standard input" : wanted->file;
    if (!bytes) {
        err << "wanderkit forecast: " << shownName << ": cannot be read\n";
        return UsageError;
    }
    std::string problem;
    const auto forecast = OpenMeteoForecast::read(*bytes, problem);
    if (!forecast) {
        err << "wanderkit forecast: " << shownName << ": " << problem << "; nothing was changed\n";
        return UsageError;
    }
    const auto session = CommandSession::open(request, err);
    if (!session)
        return Unusable;
    WeatherFavourites& favourites = session->favourites();
    const auto position = targetFavourite(*session, favourites, *wanted, *forecast, err);
    if (!position)
        return UsageError;
    const std::wstring name = favourites.getName(*position);
    const std::wstring code = favourites.getLocationCode(*position);
    const std::wstring updateKey = forecast->lastDate() + L":" + favourites.getCountryFile(*position);
    const int byName = wanted->favourite.empty() ? 0 : 1;
    if (!favourites.updateFavourite(name, code, forecast->table().joined(), updateKey, byName)) {
        err << "wanderkit forecast: the forecast of " << WideToUtf8(name) << " could not be stored\n";
        return Unusable;
    }
    out << WideToUtf8(name) << ": " << forecast->days() << (forecast->days() == 1 ? " day" : " days") << " from "
        << WideToUtf8(forecast->firstDate()) << " to " << WideToUtf8(forecast->lastDate()) << '\n';
    return 0;
}
