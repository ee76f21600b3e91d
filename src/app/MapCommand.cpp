// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/MapCommand.h"

#include "app/PngFile.h"
#include "astro/MapCities.h"
#include "astro/TerminatorColumns.h"
#include "cli/CommandWords.h"
#include "cli/RunOnDevice.h"
#include "device/DeviceClock.h"
#include "screens/map/MapRenderer.h"
#include "session/HomeCity.h"
#include "text/WideText.h"
#include "ui/Painting.h"
#include "ui/WideString.h"

#include <QGuiApplication>
#include <QImageReader>

#include <charconv>
#include <memory>
#include <optional>
#include <ostream>

namespace {

constexpr int MaxSide = 16384;
constexpr const char* Usage = "Usage: wanderkit map FILE.png [--size WxH] [--markers]\n";
// The handheld's day picture is 480 x 240; anything larger is drawn from the 2048 x 1024 one.
constexpr int SmallPictureWidth = 480;
constexpr int SmallPictureHeight = 240;

struct MapRequest
{
    std::string file;
    int width = 1024;
    int height = 512;
    bool markers = false;
};

std::optional<int> side(std::string_view text)
{
    int value = 0;
    const auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (ec != std::errc() || end != text.data() + text.size() || value < 1 || value > MaxSide)
        return std::nullopt;
    return value;
}

bool parseSize(std::string_view text, MapRequest& request)
{
    const auto x = text.find('x');
    if (x == std::string_view::npos)
        return false;
    const auto width = side(text.substr(0, x));
    const auto height = side(text.substr(x + 1));
    if (!width || !height)
        return false;
    request.width = *width;
    request.height = *height;
    return true;
}

std::optional<MapRequest> parseMapRequest(const std::vector<std::string>& args, std::ostream& err)
{
    MapRequest request;
    for (std::size_t i = 0; i < args.size(); ++i) {
        if (const auto size = CommandWords::optionValue(args, i, "--size")) {
            if (!parseSize(*size, request))
                return err << "wanderkit: map: --size wants WIDTHxHEIGHT, each 1 to " << MaxSide << ", got \"" << *size
                           << "\"\n"
                           << Usage,
                       std::nullopt;
        } else if (args[i] == "--markers") {
            request.markers = true;
        } else if (!CommandWords::takeOnlyWord(args[i], request.file, "map", Usage, err)) {
            return std::nullopt;
        }
    }
    if (request.file.empty())
        return err << "wanderkit: map: name the PNG file to write\n" << Usage, std::nullopt;
    return request;
}

// The day picture for a map of this size: the handheld's for its own size or smaller, else the large one
// (the handheld's when the large one is missing). Null when neither can be read.
QImage dayPicture(const DevicePaths& paths, const MapRequest& request)
{
    const bool large = request.width > SmallPictureWidth || request.height > SmallPictureHeight;
    const std::vector<const wchar_t*> names
        = large ? std::vector {L"daylarge.jpg", L"day.jpg"} : std::vector {L"day.jpg"};
    for (const wchar_t* name : names) {
        const auto path = paths.hostPath(DevicePaths::joinedName(name));
        if (!path)
            continue;
        QImage picture = QImageReader(QString::fromStdString(path->string()), "jpg").read();
        if (!picture.isNull())
            return picture;
    }
    return {};
}

std::vector<MapRenderer::Marker> markers(CommandSession& session)
{
    CityCatalogue& cities = session.cities();
    const std::uint32_t count = cities.Count();
    const std::int32_t selected = MapCities::validSelection(MapCities::storedSelection(session.settings()), count);
    const std::wstring selectedName = cities.CityName(static_cast<std::uint32_t>(selected));
    std::vector<MapRenderer::Marker> marked;
    for (const std::uint32_t position : MapCities::markedPositions(session.settings(), false)) {
        if (position >= count)
            continue;
        const CityRecord city = cities.Record(position);
        marked.push_back(
            {ToQString(city.name), Wtol(city.coordinate1), Wtol(city.coordinate2), city.name == selectedName});
    }
    return marked;
}

// The World Clocks cities, labelled at a size that suits the map's width.
MapRenderer::MarkerSet markerSet(CommandSession& session, QSize size)
{
    const int scale = std::max(1, size.width() / 960);
    return {markers(session), Painting::makeFont(14 * scale, Painting::Bold), scale};
}

} // namespace

int RunMapCommand(const CommandRequest& command, std::ostream& out, std::ostream& err)
{
    return RunOnDevice(command, err, parseMapRequest, [&](const MapRequest& request, CommandSession& session) {
        const QImage day = dayPicture(session.paths(), request);
        if (day.isNull()) {
            err << "wanderkit: map: no readable day picture (day.jpg) in " << session.paths().root().string() << '\n';
            return CommandExit::Unusable;
        }
        const SystemTime now = session.clock().localTime();
        const DeviceOffset device
            = HomeCity::deviceOffset(session.cities(), HomeCity::position(session.settings()), session.clock());
        const QSize size(request.width, request.height);
        const TerminatorColumns night
            = ComputeTerminatorColumns(computeSunForTerminator(now, device), size.width(), size.height(), now.month);
        // Labels need fonts, and fonts a GUI application: one without a display, made only for --markers.
        std::optional<QGuiApplication> application;
        std::optional<MapRenderer::MarkerSet> markers;
        if (request.markers) {
            qputenv("QT_QPA_PLATFORM", "offscreen");
            static int argc = 1;
            static char name[] = "wanderkit";
            static char* argv[] = {name, nullptr};
            application.emplace(argc, argv);
            markers = markerSet(session, size);
        }
        const QImage map
            = MapRenderer::render(day, size, MapRenderer::Stretch::Smooth, night, markers ? &*markers : nullptr);
        if (map.isNull()) {
            err << "wanderkit: map: not enough memory for a " << size.width() << 'x' << size.height() << " map\n";
            return CommandExit::Unusable;
        }
        QString error;
        if (!PngFile::write(map, QString::fromStdString(request.file), error)) {
            err << "wanderkit: map: cannot write " << request.file << ": " << error.toStdString() << '\n';
            return CommandExit::Unusable;
        }
        out << request.file << '\t' << size.width() << 'x' << size.height() << '\n';
        return 0;
    });
}
