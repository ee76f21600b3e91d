// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/FavouritesCommand.h"

#include "cli/CommandSession.h"
#include "cli/CommandWords.h"
#include "cli/FavouriteLookup.h"
#include "store/WeatherFavourites.h"
#include "text/WideText.h"

#include <ostream>

namespace {

constexpr int Unusable = 1; // the state cannot be used, or nothing has the name given
constexpr int UsageError = 2;
constexpr const char* Usage = "Usage: wanderkit favourites [add CITY | remove FAVOURITE]\n";

std::string favouriteLine(
    std::wstring_view name, std::wstring_view code, std::wstring_view lastUpdate, std::wstring_view country)
{
    return WideToUtf8(name) + '\t' + WideToUtf8(code) + '\t' + WideToUtf8(lastUpdate) + '\t' + WideToUtf8(country)
        + '\n';
}

std::string favouriteLine(WeatherFavourites& favourites, std::uint32_t position)
{
    return favouriteLine(favourites.getName(position), favourites.getLocationCode(position),
        favourites.getLastUpdate(position), favourites.getCountryFile(position));
}

int list(WeatherFavourites& favourites, std::ostream& out)
{
    const std::uint16_t count = favourites.count();
    for (std::uint32_t i = 0; i < count; ++i)
        out << favouriteLine(favourites, i);
    return 0;
}

int reportMissingCity(const DevicePaths& paths, const std::string& word, std::ostream& err)
{
    err << "wanderkit favourites: no city of the weather country lists is named \"" << word << "\"";
    const auto near = WeatherCitiesContaining(paths, word, 5);
    for (std::size_t i = 0; i < near.size(); ++i)
        err << (i == 0 ? "; names that contain it: " : ", ") << near[i];
    err << '\n';
    return Unusable;
}

// Writes what the favourites dialog's ADD writes: the city, its code, no forecast, the initial date and
// the country list's name.
int add(CommandSession& session, const std::string& word, std::ostream& out, std::ostream& err)
{
    const std::vector<WeatherCity> found = FindWeatherCities(session.paths(), word);
    if (found.empty())
        return reportMissingCity(session.paths(), word, err);
    if (found.size() > 1) {
        err << "wanderkit favourites: \"" << word << "\" names several cities; say which one as city:country:";
        for (const WeatherCity& city : found)
            err << "\n  " << WideToUtf8(city.name) << ':' << WideToUtf8(city.country);
        err << '\n';
        return UsageError;
    }
    const WeatherCity& city = found.front();
    const std::wstring updateKey = std::wstring(WeatherFavourites::InitialUpdateDate) + L":" + city.country;
    if (!session.favourites().addFavourite(city.name, city.locationCode, L"", updateKey)) {
        err << "wanderkit favourites: " << WideToUtf8(city.name) << " could not be stored\n";
        return Unusable;
    }
    out << favouriteLine(city.name, city.locationCode, WeatherFavourites::InitialUpdateDate, city.country);
    return 0;
}

int remove(CommandSession& session, const std::string& word, std::ostream& out, std::ostream& err)
{
    WeatherFavourites& favourites = session.favourites();
    SqliteConnection& connection = session.device().objects().connection();
    // The lookup and the removal are one write transaction, so that no other process moves the favourites
    // in between; what this process read before taking the lock may predate another's commit.
    ObjectStore::Transaction transaction(connection);
    connection.noteChange();
    const auto position = FindFavourite(favourites, word);
    if (!position) {
        err << "wanderkit favourites: no favourite is named or numbered \"" << word
            << "\" (see wanderkit favourites)\n";
        return Unusable;
    }
    const std::string removed = favouriteLine(favourites, *position);
    if (!transaction.active() || !favourites.removeFavourite(*position) || !transaction.commit()) {
        err << "wanderkit favourites: the favourite \"" << word << "\" could not be removed\n";
        return Unusable;
    }
    out << removed;
    return 0;
}

} // namespace

int RunFavouritesCommand(const CommandRequest& request, std::ostream& out, std::ostream& err)
{
    const CommandWords words = CommandWords::split(request.args);
    const std::string action = words.words.empty() ? "" : words.words[0];
    const bool named = words.words.size() >= 2 && (action == "add" || action == "remove");
    if (!words.options.empty() || !(words.words.empty() || named)) {
        err << "wanderkit favourites: unexpected arguments\n" << Usage;
        return UsageError;
    }
    const auto session = CommandSession::open(request, err);
    if (!session)
        return Unusable;
    if (action == "add")
        return add(*session, words.joined(1), out, err);
    if (action == "remove")
        return remove(*session, words.joined(1), out, err);
    return list(session->favourites(), out);
}
