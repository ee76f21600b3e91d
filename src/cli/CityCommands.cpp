// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/CityCommands.h"

#include "cli/CityLookup.h"
#include "cli/CommandWords.h"
#include "cli/RunOnDevice.h"
#include "device/DeviceClock.h"
#include "session/HomeCity.h"
#include "text/WideText.h"
#include "time/CalendarDays.h"
#include "time/CityInformation.h"
#include "time/ClockOffsets.h"
#include "time/ClockSlotText.h"
#include "time/TwelveHourTime.h"

#include <ostream>
#include <utility>

namespace {

using CommandExit::UsageError;
constexpr const char* TimeUsage = "Usage: wanderkit time CITY... [--home CITY] [--twelve-hour]\n";

struct TimeRequest
{
    std::vector<std::string> cities;
    std::optional<std::string> home;
    bool twelveHour = false;
};

std::optional<TimeRequest> parseTimeRequest(const std::vector<std::string>& args, std::ostream& err)
{
    TimeRequest request;
    for (std::size_t i = 0; i < args.size(); ++i) {
        if (args[i] == "--twelve-hour") {
            request.twelveHour = true;
        } else if (auto home = CommandWords::optionValue(args, i, "--home")) {
            if (home->empty())
                return err << "wanderkit: time: --home wants a city\n" << TimeUsage, std::nullopt;
            request.home = std::move(home);
        } else if (args[i].starts_with("-")) {
            err << "wanderkit: time: unknown option " << args[i] << '\n' << TimeUsage;
            return std::nullopt;
        } else {
            request.cities.push_back(args[i]);
        }
    }
    if (request.cities.empty()) {
        err << "wanderkit: time: name at least one city\n" << TimeUsage;
        return std::nullopt;
    }
    return request;
}

std::string dayMonthYear(const ClockSlot& slot, const SystemTime& date)
{
    return slot.observes ? WideToUtf8(FormatDayMonthYear(date)) : "-";
}

} // namespace

int RunCitiesCommand(const CommandRequest& request, std::ostream& out, std::ostream& err)
{
    const CommandWords words = CommandWords::split(request.args);
    if (!words.options.empty())
        return CommandWords::refuseOption(words.options.front(), "cities", "Usage: wanderkit cities [TEXT]\n", err);
    auto session = CommandSession::open(request, err);
    if (!session)
        return CommandExit::Unusable;
    const std::wstring text = FoldLatin1(Utf8ToWide(words.joined()));
    CityCatalogue& cities = session->cities();
    const std::uint32_t count = cities.Count();
    for (std::uint32_t i = 0; i < count; ++i) {
        const CityRecord city = cities.Record(i);
        if (FoldLatin1(city.name + L":" + city.country).find(text) == std::wstring::npos)
            continue;
        out << i << '\t' << WideToUtf8(city.name) << '\t' << WideToUtf8(city.country) << '\t'
            << WideToUtf8(city.coordinate1) << '\t' << WideToUtf8(city.coordinate2) << '\t' << WideToUtf8(city.timeZone)
            << '\t' << WideToUtf8(city.daylightRule) << '\n';
    }
    return 0;
}

int RunTimeCommand(const CommandRequest& request, std::ostream& out, std::ostream& err)
{
    return RunOnDevice(request, err, parseTimeRequest, [&](const TimeRequest& wanted, CommandSession& session) {
        std::uint32_t home = HomeCity::position(session.settings());
        const CityLookup lookup(session.cities());
        if (wanted.home) {
            const auto found = lookup.find(*wanted.home, err);
            if (!found)
                return lookup.refusalCode();
            home = *found;
        }
        std::vector<std::uint32_t> positions;
        for (const std::string& word : wanted.cities) {
            const auto found = lookup.find(word, err);
            if (!found)
                return lookup.refusalCode();
            positions.push_back(*found);
        }
        CityCatalogue& cities = session.cities();
        const SystemTime now = session.clock().localTime();
        const DeviceOffset device = HomeCity::deviceOffset(cities, home, session.clock());
        for (const std::uint32_t position : positions) {
            const CityRecord city = cities.Record(position);
            const ClockSlot slot = ComputeCitySlot({city.timeZone, city.daylightRule}, device, now);
            const ClockSlotText text = FormatCitySlot(slot, device, now);
            const std::wstring time = wanted.twelveHour ? ToTwelveHour(text.time).withSuffix() : text.time;
            out << position << '\t' << WideToUtf8(city.name) << '\t' << WideToUtf8(time) << '\t'
                << WideToUtf8(text.date) << '\t' << slot.offset << '\t' << slot.observes << '\t'
                << dayMonthYear(slot, slot.start) << '\t' << dayMonthYear(slot, slot.end) << '\n';
        }
        return 0;
    });
}

int RunCityCommand(const CommandRequest& request, std::ostream& out, std::ostream& err)
{
    if (request.args.size() != 1 || request.args[0].starts_with("-")) {
        err << "wanderkit: city: name one city\nUsage: wanderkit city CITY\n";
        return UsageError;
    }
    auto session = CommandSession::open(request, err);
    if (!session)
        return CommandExit::Unusable;
    const CityLookup lookup(session->cities());
    const auto position = lookup.find(request.args[0], err);
    if (!position)
        return lookup.refusalCode();
    CityCatalogue& cities = session->cities();
    const DeviceOffset device
        = HomeCity::deviceOffset(cities, HomeCity::position(session->settings()), session->clock());
    for (const std::wstring& line :
        CityInformationLines(cities.Record(*position), device, session->clock().localTime()))
        out << WideToUtf8(line) << '\n';
    return 0;
}
