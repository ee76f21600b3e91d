// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/map/MapScreen.h"

#include "astro/MapCities.h"
#include "device/DeviceClock.h"
#include "device/DevicePaths.h"
#include "screens/select/SelectDialog.h"
#include "session/HomeCity.h"
#include "settings/SettingsTable.h"
#include "store/CityCatalogue.h"
#include "store/WeatherFavourites.h"
#include "text/WideText.h"
#include "time/CityDaylight.h"
#include "time/CityTime.h"
#include "time/MapTwelveHour.h"
#include "ui/Commands.h"
#include "ui/DeviceWindow.h"
#include "ui/Icons.h"
#include "ui/Painting.h"
#include "ui/SoftKeyBar.h"
#include "ui/Spinner.h"
#include "ui/StringIds.h"
#include "ui/WideString.h"

#include <QPainter>

#include <functional>

namespace {

constexpr int TickTimer = 1;
const QColor TimeColour(51, 102, 150);
const QColor CityTimeColour(0, 0, 100);
const QColor WindowFill(150, 150, 150);

CityZoneTexts zoneTexts(const CityRecord& city)
{
    return {city.timeZone, city.daylightRule};
}

QImage loadPicture(const DevicePaths& paths, const wchar_t* name)
{
    const auto path = paths.hostPath(DevicePaths::joinedName(name));
    return path ? QImage(QString::fromStdString(path->string())) : QImage();
}

} // namespace

MapScreen::MapScreen(
    ScreenEnvironment& environment, DeviceWindow& window, CityCatalogue& cities, WeatherFavourites& favourites)
    : CityScreen(environment, window, MenuBarId::Map, QStringLiteral("worldmap"), cities, favourites)
    , m_spinner(addSpinner(QStringLiteral("citySpinner"), std::bind_front(&MapScreen::stepCity, this)))
{
    setWindowTitle(QStringLiteral("Wandrekit")); // the handheld's caption of this screen, misspelt
    keepSetting(Settings::MapClock, [this] { return static_cast<std::uint32_t>(m_selected); });
    onCommand({Commands::ShowCitiesOnMap}, std::bind_front(&MapScreen::toggleMarkers, this));
    onCommand({Commands::ChangeCity, Commands::Ok}, std::bind_front(&MapScreen::changeCity, this));
    onCommand({Commands::WeatherForecast}, std::bind_front(&MapScreen::showWeather, this));
}

void MapScreen::initialise()
{
    ReadSetting(settings(), Settings::SyncLocalZone); // read as the handheld did; the map runs unsynchronised
    m_favourites.loadFavouritesOnce();
    m_showCities = ReadSetting(settings(), Settings::ShowCities) != 0;
    softKeys()->setItemChecked(Commands::ShowCitiesOnMap, m_showCities);
    // A stored position that is negative or past the end of the catalogue (a catalogue that shrank, a
    // value edited by hand) shows the first city, as a missing "mapclock" does: position 0 always exists.
    m_selected = MapCities::validSelection(MapCities::storedSelection(settings()), m_cities.Count());
    computeDeviceOffset();
    computeCity();
    formatTimes();
    m_tickCount = 0;
    m_redrawMap = true;
    m_leftPressed = m_rightPressed = false;
    startScreenTimer(TickTimer, TickMilliseconds);
    m_timeFont = Painting::makeFont(34, Painting::Bold);
    m_smallFont = Painting::makeFont(14, Painting::Bold);
    m_cityTimeFont = Painting::makeFont(23, Painting::Bold);
    m_nameFont = Painting::makeFont(24, Painting::Bold);
    m_sunFont = Painting::makeFont(18, Painting::Bold);
    m_twelveHour = ReadSetting(settings(), Settings::TwelveHour) == 1;
    m_spinner->setItems({ToQString(m_city.name)});
    m_spinner->setCurrentIndex(0);
    m_spinner->setFocus();
    loadPictures();
}

void MapScreen::loadPictures()
{
    m_nightPicture = loadPicture(environment().paths, L"bmap.jpg");
    m_dayPicture = loadPicture(environment().paths, L"day.jpg");
}

void MapScreen::computeDeviceOffset()
{
    const DeviceClock& clock = environment().clock;
    const std::uint32_t home = HomeCity::position(settings());
    m_device = HomeCity::deviceOffset(m_cities, home, clock);
    m_homeZone = zoneTexts(m_cities.Record(home));
    m_deviceDaylight = EvaluateHomeDaylight(m_homeZone, clock.localTime()).inEffect;
}

void MapScreen::computeCity()
{
    const SystemTime now = environment().clock.localTime();
    m_city = m_cities.Record(static_cast<std::uint32_t>(m_selected));
    m_citySlot = ComputeCitySlot(zoneTexts(m_city), m_device, now);
    m_sun = ComputeCitySunTimes(m_city, m_device, now);
}

void MapScreen::formatTimes()
{
    const SystemTime now = environment().clock.localTime();
    m_localTime = ToQString(FormatText(L"%02d:%02d:%02d", now.hour, now.minute, now.second));
    m_cityTime = ToQString(FormatCityTime(m_citySlot.offset, m_device, false, now));
}

QString MapScreen::shownLocalTime() const
{
    return m_twelveHour ? ToQString(MapTwelveHour(ToWide(m_localTime))) : m_localTime;
}

QString MapScreen::shownCityName() const
{
    QFontMetrics metrics(m_nameFont);
    return Painting::shortenToFit(metrics, ToQString(m_city.name), workWidth() - 72);
}

void MapScreen::layout(int width, int height)
{
    m_spinner->hideAt(100, 100);
    m_layout = MapLayout::of(width, height);
    m_redrawMap = true;
}

void MapScreen::timerTick(int)
{
    tick();
}

void MapScreen::tick()
{
    if (++m_tickCount >= TicksPerRedraw) {
        m_tickCount = 0;
        m_redrawMap = true;
        update();
    }
    update(m_layout.clock);
    if (m_leftPressed || m_rightPressed)
        m_leftPressed = m_rightPressed = false;
    const QString cityTimeBefore = m_cityTime;
    formatTimes();
    if (m_cityTime != cityTimeBefore)
        update(m_layout.cityTime);
    const SystemTime now = environment().clock.localTime();
    if (EvaluateHomeDaylight(m_homeZone, now).inEffect != m_deviceDaylight)
        computeDeviceOffset();
    if (ComputeCitySlot(zoneTexts(m_city), m_device, now).offset != m_citySlot.offset) {
        computeCity();
        update(m_layout.cityArea());
    }
    if (m_localTime == QLatin1String("00:00:00"))
        update(m_layout.clock | m_layout.cityArea());
}

void MapScreen::stepCity(int delta)
{
    m_leftPressed = delta < 0;
    m_rightPressed = delta > 0;
    selectCity(MapCities::steppedSelection(m_selected, delta, m_cities.Count()));
}

void MapScreen::selectCity(std::int32_t city)
{
    m_selected = city;
    WriteSetting(settings(), Settings::MapClock, static_cast<std::uint32_t>(m_selected));
    computeCity();
    formatTimes();
    m_spinner->setItems({ToQString(m_city.name)});
    m_spinner->setCurrentIndex(0);
    m_redrawMap = true;
    update();
}

void MapScreen::showWeather()
{
    openWeatherFor(static_cast<std::uint32_t>(m_selected));
}

void MapScreen::toggleMarkers()
{
    m_showCities = ReadSetting(settings(), Settings::ShowCities) == 0;
    WriteSetting(settings(), Settings::ShowCities, m_showCities ? 1 : 0);
    softKeys()->setItemChecked(Commands::ShowCitiesOnMap, m_showCities);
    m_redrawMap = true;
    update();
}

void MapScreen::changeCity()
{
    SelectDialog dialog(environment(), window());
    dialog.setMode(SelectDialog::Mode::City);
    dialog.setSelection(m_selected);
    // The dialog has no cancel: its city is taken even when the program ends over it.
    runModal(dialog);
    m_spinner->setFocus();
    selectCity(dialog.selection());
}

void MapScreen::destroyWork()
{
    m_dayPicture = m_nightPicture = m_map = QImage();
}

void MapScreen::eraseBackground(QPainter& painter)
{
    painter.fillRect(rect(), WindowFill);
    Painting::drawGradient(painter, workWidth(), workHeight());
}

MapRenderer::MarkerSet MapScreen::markers()
{
    MapRenderer::MarkerSet set {{}, m_smallFont, 1};
    const std::uint32_t count = m_cities.Count();
    for (const std::uint32_t position : MapCities::markedPositions(settings(), true)) {
        if (position >= count)
            continue;
        const CityRecord city = m_cities.Record(position);
        set.markers.push_back(
            {ToQString(city.name), Wtol(city.coordinate1), Wtol(city.coordinate2), city.name == m_city.name});
    }
    return set;
}

// The picture under the night: "day.jpg", or when it is missing the background it would have covered.
void MapScreen::drawMap()
{
    m_redrawMap = false;
    if (m_layout.map.isEmpty()) {
        m_map = QImage();
        return;
    }
    const SystemTime now = environment().clock.localTime();
    const TerminatorColumns night = ComputeTerminatorColumns(
        computeSunForTerminator(now, m_device), m_layout.map.width(), m_layout.map.height(), now.month);
    QImage base = m_dayPicture;
    if (base.isNull()) {
        base = QImage(m_layout.map.size(), QImage::Format_RGB32);
        QPainter painter(&base);
        eraseBackground(painter);
    }
    const MapRenderer::MarkerSet set = markers();
    m_map = MapRenderer::render(
        base, m_layout.map.size(), MapRenderer::Stretch::Plain, night, m_showCities ? &set : nullptr);
}

void MapScreen::paint(QPainter& painter)
{
    if (m_redrawMap)
        drawMap();
    if (dirtyRect().intersects(m_layout.map))
        painter.drawImage(0, 0, m_map);
    paintClock(painter);
    paintCity(painter);
}

void MapScreen::paintClock(QPainter& painter) const
{
    const QString text = shownLocalTime();
    const QString large = text.left(5);
    const QString rest = text.mid(5);
    const QFontMetrics largeMetrics(m_timeFont);
    const QFontMetrics restMetrics(m_sunFont);
    const int largeWidth = largeMetrics.horizontalAdvance(large);
    const int left = (workWidth() - largeWidth - 2 - restMetrics.horizontalAdvance(rest)) / 2;
    const int baseline = m_layout.clock.top() + largeMetrics.ascent();
    painter.setPen(TimeColour);
    painter.setFont(m_timeFont);
    painter.drawText(left, baseline, large);
    painter.setFont(m_sunFont);
    painter.drawText(left + largeWidth + 2, baseline, rest);

    const int width = workWidth();
    const int mapHeight = m_layout.mapHeight;
    if (m_leftPressed)
        Icons::draw(painter, Icons::LeftArrow, 5, mapHeight + 4, 24);
    else
        Icons::draw(painter, Icons::LeftArrow, 5, mapHeight + 8, 16);
    if (m_rightPressed)
        Icons::draw(painter, Icons::RightArrow, width - 29, mapHeight + 4, 24);
    else
        Icons::draw(painter, Icons::RightArrow, width - 21, mapHeight + 8, 16);
}

void MapScreen::paintCity(QPainter& painter) const
{
    const QRect& cityTime = m_layout.cityTime;
    Icons::draw(painter, Icons::Service, cityTime.left(), cityTime.top(), 24);
    painter.setPen(CityTimeColour);
    painter.setFont(m_cityTimeFont);
    painter.drawText(cityTime.adjusted(30, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, m_cityTime);

    painter.setFont(m_smallFont);
    painter.drawText(m_layout.coordinates, Qt::AlignLeft | Qt::AlignVCenter,
        Painting::loadString(StringIds::LongLat) + QStringLiteral(": ") + ToQString(m_city.coordinate1)
            + QLatin1Char('/') + ToQString(m_city.coordinate2));

    const QRect& sun = m_layout.sun;
    painter.setFont(m_sunFont);
    const QString sunrise = ToQString(m_sun.times.sunriseText);
    const int sunriseWidth = QFontMetrics(m_sunFont).horizontalAdvance(sunrise);
    painter.drawText(sun, Qt::AlignLeft | Qt::AlignVCenter, sunrise);
    Icons::draw(painter, Icons::Service, sun.left() + sunriseWidth + 6, sun.top() + (sun.height() - 16) / 2, 16);
    painter.drawText(
        sun.adjusted(sunriseWidth + 28, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, ToQString(m_sun.times.sunsetText));

    painter.setPen(Painting::White);
    painter.setFont(m_nameFont);
    painter.drawText(m_layout.name, Qt::AlignHCenter | Qt::AlignVCenter, shownCityName());
}
