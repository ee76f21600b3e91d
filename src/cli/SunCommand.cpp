// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/SunCommand.h"

#include "astro/CitySunTimes.h"
#include "cli/CityLookup.h"
#include "cli/CommandWords.h"
#include "cli/RunOnDevice.h"
#include "device/SystemDeviceClock.h"
#include "session/HomeCity.h"
#include "text/WideText.h"

#include <ostream>

namespace {

constexpr const char* Usage = "Usage: wanderkit sun CITY [--date YYYY-MM-DD]\n";

struct SunRequest
{
    std::string city;
    std::optional<SystemTime> date;
};

// A calendar date from "YYYY-MM-DD", 1601 to 30827; nothing when it is not one.
std::optional<SystemTime> parseDate(const std::string& text)
{
    if (text.size() != 10)
        return std::nullopt;
    return SystemDeviceClock::parseLocalTime((text + " 12:00:00").c_str());
}

std::optional<SunRequest> parseSunRequest(const std::vector<std::string>& args, std::ostream& err)
{
    SunRequest request;
    for (std::size_t i = 0; i < args.size(); ++i) {
        if (const auto date = CommandWords::optionValue(args, i, "--date")) {
            request.date = parseDate(*date);
            if (!request.date)
                return err << "wanderkit: sun: --date wants a calendar date YYYY-MM-DD, got \"" << *date << "\"\n"
                           << Usage,
                       std::nullopt;
        } else if (!CommandWords::takeOnlyWord(args[i], request.city, "sun", Usage, err)) {
            return std::nullopt;
        }
    }
    if (request.city.empty())
        return err << "wanderkit: sun: name one city\n" << Usage, std::nullopt;
    return request;
}

// The device's local time, moved to `date` when one is given (time of day kept).
SystemTime onDate(SystemTime now, const std::optional<SystemTime>& date)
{
    if (date) {
        now.year = date->year;
        now.month = date->month;
        now.day = date->day;
    }
    return now;
}

} // namespace

int RunSunCommand(const CommandRequest& command, std::ostream& out, std::ostream& err)
{
    return RunOnDevice(command, err, parseSunRequest, [&](const SunRequest& request, CommandSession& session) {
        const CityLookup lookup(session.cities());
        const auto position = lookup.find(request.city, err);
        if (!position)
            return lookup.refusalCode();
        CityCatalogue& cities = session.cities();
        // The device offset too is the one of that date: the home city may observe daylight saving then.
        const SystemTime now = onDate(session.clock().localTime(), request.date);
        const DeviceOffset device
            = HomeCity::deviceOffset(cities, HomeCity::position(session.settings()), session.clock(), now);
        const CitySunTimes sun = ComputeCitySunTimes(cities.Record(*position), device, now);
        out << WideToUtf8(sun.times.sunriseText) << '\t' << WideToUtf8(sun.times.sunsetText) << '\t'
            << WideToUtf8(sun.times.dayLengthText) << '\t' << sun.utcHours << '\n';
        return 0;
    });
}
