// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/WeatherCommands.h"

#include "cli/CommandSession.h"
#include "cli/CommandWords.h"
#include "cli/FavouriteLookup.h"
#include "device/DeviceClock.h"
#include "settings/MappingFile.h"
#include "settings/SettingsTable.h"
#include "store/WeatherFavourites.h"
#include "text/StringTable.h"
#include "text/WideText.h"
#include "weather/ForecastDisplay.h"

#include <charconv>
#include <ostream>

namespace {

constexpr int Unusable = 1;
constexpr int UsageError = 2;
constexpr const char* WeatherUsage = "Usage: wanderkit weather [FAVOURITE] [--day N]\n";

struct WeatherRequest
{
    std::string favourite; // empty: the favourite of "wetp"
    int day = 0; // 0: every day
};

bool parseDay(const std::string& text, int& day)
{
    const auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), day);
    return ec == std::errc() && end == text.data() + text.size() && day >= 1 && day <= ForecastDisplay::Days;
}

std::optional<WeatherRequest> parseWeatherRequest(const std::vector<std::string>& args, std::ostream& err)
{
    WeatherRequest request;
    for (std::size_t i = 0; i < args.size(); ++i) {
        if (const auto day = CommandWords::optionValue(args, i, "--day")) {
            if (!parseDay(*day, request.day)) {
                err << "wanderkit weather: --day wants a day from 1 to 5\n" << WeatherUsage;
                return std::nullopt;
            }
        } else if (args[i].starts_with("-")) {
            err << "wanderkit weather: unknown option " << args[i] << '\n' << WeatherUsage;
            return std::nullopt;
        } else {
            request.favourite += (request.favourite.empty() ? "" : " ") + args[i];
        }
    }
    return request;
}

void printDay(std::ostream& out, int index, std::wstring_view weekday, const ForecastDayTexts& day)
{
    out << index + 1 << '\t' << WideToUtf8(weekday);
    for (const std::wstring* text : {&day.iconPath, &day.condition, &day.wind, &day.temperatures, &day.precipitation,
             &day.sunrise, &day.sunset, &day.realFeel, &day.date, &day.issue})
        out << '\t' << WideToUtf8(*text);
    out << '\n';
}

} // namespace

int RunWeatherCommand(const CommandRequest& request, std::ostream& out, std::ostream& err)
{
    const auto wanted = parseWeatherRequest(request.args, err);
    if (!wanted)
        return UsageError;
    const auto session = CommandSession::open(request, err);
    if (!session)
        return Unusable;
    WeatherFavourites& favourites = session->favourites();
    std::uint32_t position = ReadSetting(session->settings(), Settings::WeatherPosition);
    if (!wanted->favourite.empty()) {
        const auto found = FindFavourite(favourites, wanted->favourite);
        if (!found) {
            err << "wanderkit weather: no favourite is named or numbered \"" << wanted->favourite
                << "\" (see wanderkit favourites)\n";
            return UsageError;
        }
        position = *found;
    }
    const std::wstring mapping = ReadMappingText(session->settings(), session->paths());
    const std::wstring iconFolder = ReadSetting(session->settings(), Settings::IconFolder);
    const SystemTime today = session->clock().localTime();
    const auto display = ForecastDisplay::ofFavourite(
        favourites, favourites.getName(position), today, {mapping, iconFolder, DevicePaths::ProgramPath, 0});
    if (!display) {
        err << "wanderkit weather: " << WideToUtf8(StringTable::Load(40039)) << '\n';
        return Unusable;
    }
    for (int k = 0; k < ForecastDisplay::Days; ++k)
        if (wanted->day == 0 || wanted->day == k + 1)
            printDay(out, k, ForecastWeekday(today, k), display->day(k));
    return 0;
}
