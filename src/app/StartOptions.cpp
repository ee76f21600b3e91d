// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/StartOptions.h"

#include "cli/CommandRunner.h"
#include "device/SystemDeviceClock.h"

#include <algorithm>
#include <charconv>
#include <set>

namespace {

// `map` draws with QtGui, so it is the program's own command rather than one of the core's.
const std::string MapCommand = "map";

bool parseInt(const std::string& text, int low, int high, int& value)
{
    int parsed = 0;
    const auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), parsed);
    if (ec != std::errc() || end != text.data() + text.size() || parsed < low || parsed > high)
        return false;
    value = parsed;
    return true;
}

bool parseSize(const std::string& text, int& width, int& height)
{
    const auto x = text.find('x');
    if (x == std::string::npos)
        return false;
    int w = 0, h = 0;
    if (!parseInt(text.substr(0, x), 100, 4000, w) || !parseInt(text.substr(x + 1), 100, 4000, h))
        return false;
    width = w;
    height = h;
    return true;
}

// A window larger than any screen would only cost memory: 4000x4000 at scale 8 needs 4 GB of pixels.
constexpr int MaxWindowSide = 8192; // device pixels

// Applies one option that takes a value; false with `error` set when the value is bad.
bool applyValueOption(StartOptions& o, const std::string& name, const std::string& value, std::string& error)
{
    if (name == "--size") {
        if (!parseSize(value, o.width, o.height))
            return error = "--size wants WIDTHxHEIGHT, each 100 to 4000 (for example 240x268)", false;
    } else if (name == "--scale") {
        if (!parseInt(value, 1, 8, o.scale))
            return error = "--scale wants a whole number from 1 to 8", false;
    } else if (name == "--state-dir") {
        o.device.stateDir = value;
    } else if (name == "--device-root") {
        o.device.deviceRoot = value;
    } else if (name == "--tour") {
        o.tourDir = value;
    } else if (name == "--now") {
        o.device.now = SystemDeviceClock::parseLocalTime(value.c_str());
        if (!o.device.now)
            return error = "--now wants a local time \"YYYY-MM-DD HH:MM:SS\"", false;
    }
    return true;
}

} // namespace

std::optional<StartOptions> StartOptions::parse(const std::vector<std::string>& args, std::string& error)
{
    static const std::set<std::string> valueOptions {
        "--size", "--scale", "--state-dir", "--device-root", "--now", "--tour"};
    StartOptions o;
    for (std::size_t i = 0; i < args.size(); ++i) {
        std::string arg = args[i];
        std::string value;
        bool hasValue = false;
        if (const auto eq = arg.find('='); arg.starts_with("--") && eq != std::string::npos) {
            value = arg.substr(eq + 1);
            arg = arg.substr(0, eq);
            hasValue = true;
        }
        if (o.command == MapCommand && arg == "--size") {
            // After "map", --size is the picture's size, which the command checks itself.
            o.commandArgs.push_back(args[i]);
            if (!hasValue && i + 1 < args.size())
                o.commandArgs.push_back(args[++i]);
        } else if (valueOptions.contains(arg)) {
            if (!hasValue && i + 1 < args.size())
                value = args[++i];
            // An empty folder name would be the current folder's, or with --tour the root's.
            if (value.empty())
                return error = arg + " needs a value", std::nullopt;
            if (!applyValueOption(o, arg, value, error))
                return std::nullopt;
        } else if (arg == "--help" || arg == "-h") {
            o.help = true;
        } else if (arg == "--version") {
            o.version = true;
        } else if (arg == "--exit-after-first-paint") {
            o.exitAfterFirstPaint = true;
        } else if (!o.command.empty()) {
            o.commandArgs.push_back(args[i]);
        } else if (IsCommand(arg) || arg == MapCommand) {
            o.command = arg;
        } else {
            return error = arg.starts_with("-") ? "unknown option " + args[i] : "unknown command " + args[i],
                   std::nullopt;
        }
    }
    if (o.scale * std::max(o.width, o.height) > MaxWindowSide)
        return error = "--scale " + std::to_string(o.scale) + " makes the window larger than "
                   + std::to_string(MaxWindowSide) + " pixels; choose a smaller scale or size",
               std::nullopt;
    return o;
}

std::string StartOptions::usage()
{
    return R"(Usage: wanderkit [OPTIONS] [COMMAND [ARGS]]

Wanderkit, a travel companion: world clocks, world map, weather favourites,
currency and unit converters, clothing sizes and dialing codes.

Options:
  --help                  show this help and exit
  --version               show the version and exit
  --size WxH              work area in logical pixels (default 240x268)
  --scale N               window scale (default 2; under a phone's shell, the scale that
                          fills the screen)
  --state-dir DIR         folder of registry.db and objectstore.db
                          (default $XDG_DATA_HOME/wanderkit)
  --device-root DIR       folder of the shipped data files
  --now "YYYY-MM-DD HH:MM:SS"
                          start the device clock at this local time (TZ picks the zone)
  --tour DIR              render every screen to DIR/<screen>.png and exit
  --exit-after-first-paint
                          exit as soon as the launcher has been painted

Commands (print to standard output, no window):
  cities [TEXT]           catalogue cities whose "city:country" contains TEXT
  time CITY... [--home CITY] [--twelve-hour]
                          the World Clocks time and date of each CITY
  city CITY               the city information panel of CITY
  sizes [WEARER [GARMENT]]
                          clothing size tables
  dial [TEXT]             international dialing codes of countries containing TEXT
  dial --us [TEXT]        US area codes of cities or states containing TEXT
  currency AMOUNT FROM [TO...]
                          AMOUNT of FROM in each TO (default: the converter's three)
  rates                   every currency's code, name and rate, and the last update
  rates import FILE       the ECB's daily reference rates (eurofxref-daily.xml;
                          FILE - reads standard input)
  convert AMOUNT FROM TO  convert AMOUNT between two units of one category
  units [CATEGORY]        the units of the unit converter and their factors
  sun CITY [--date YYYY-MM-DD]
                          sunrise, sunset and day length of CITY, and the offset used
  map FILE.png [--size WxH] [--markers]
                          the world map with the night side darkened, now (default 1024x512)
  weather [FAVOURITE] [--day N]
                          the five days of a favourite's forecast (or day N)
  favourites              the weather favourites: name, location code, last
                          update, country file
  favourites add CITY     add a city of the weather country lists ("Lyon" or
                          "Paris:France") as the favourites dialog does
  favourites remove FAVOURITE
                          remove a favourite (exit 1 when there is none)
  forecast import FILE [--favourite NAME]
                          store an Open-Meteo daily forecast (FILE - is standard
                          input) for the favourite at its place, or for NAME
  settings                every stored setting: key, name, type and value
  settings get KEY NAME   one stored setting (exit 1 when missing)
  settings set KEY NAME VALUE [--type dword|string]
                          store a setting (a 32-bit number unless --type string)
  settings reset          remove every setting; the next start writes the defaults

CITY is a catalogue position or a name ("Paris" or "Paris:France"); FROM and TO
of "currency" are currency codes or names ("eur", "US Dollar").
A unit is a name as listed by "units" (or its unique start) or C:I, the category
and unit indices ("4:0" is degree Celsius). FAVOURITE and NAME are a favourite's
position or name.

Keys: Left/Right move the selection, Return is the action key, F1 and F2 press
the soft keys, Escape is Back, Ctrl+R rotates the work area.
)";
}
