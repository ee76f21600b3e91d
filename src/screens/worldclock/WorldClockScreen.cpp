// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/worldclock/WorldClockScreen.h"

#include "device/DeviceClock.h"
#include "screens/select/SelectDialog.h"
#include "screens/worldclock/ClockDial.h"
#include "settings/SettingsTable.h"
#include "store/CityCatalogue.h"
#include "store/CountryCityList.h"
#include "store/WeatherFavourites.h"
#include "text/WideText.h"
#include "time/TwelveHourTime.h"
#include "ui/Commands.h"
#include "ui/DeviceWindow.h"
#include "ui/Icons.h"
#include "ui/MessageBox.h"
#include "ui/Painting.h"
#include "ui/SoftKeyBar.h"
#include "ui/Spinner.h"

#include <QPainter>
#include <QPainterPath>

namespace {

constexpr int WorldClockMenuBar = 101;
constexpr int TickTimer = 1;
constexpr int TitleHeight = 25;
constexpr int WeatherIconSize = 18;
const QColor TitleBand(0, 178, 235); // colour value 15446528
const QColor DaylightMark(255, 200, 60);

// The registry value of each slot: "clock", "clock1" ... "clock4".
const std::array<const DwordSetting*, WorldClockScreen::SlotCount> SlotSettings {
    &Settings::HomeClock, &Settings::Clock1, &Settings::Clock2, &Settings::Clock3, &Settings::Clock4};

CityZoneTexts zoneTexts(const CityRecord& city)
{
    return {city.timeZone, city.daylightRule};
}

// The hands show the time of the digital text: its hour and minutes ("HH:MM..."), the device's seconds.
SystemTime handTime(const std::wstring& text, const SystemTime& now)
{
    SystemTime time = now;
    time.hour = static_cast<std::uint16_t>(Wtol(text.substr(0, 2)));
    time.minute = text.size() >= 5 ? static_cast<std::uint16_t>(Wtol(text.substr(3, 2))) : 0;
    return time;
}

void drawShadowedText(QPainter& painter, const QPoint& topLeft, const QString& text, const QColor& colour)
{
    const int baseline = topLeft.y() + painter.fontMetrics().ascent();
    painter.setPen(QColor(0, 0, 0, 110));
    painter.drawText(topLeft.x() + 1, baseline + 1, text);
    painter.setPen(colour);
    painter.drawText(topLeft.x(), baseline, text);
}

} // namespace

WorldClockScreen::WorldClockScreen(
    ScreenEnvironment& environment, DeviceWindow& window, CityCatalogue& cities, WeatherFavourites& favourites)
    : Screen(environment, window, WorldClockMenuBar, QStringLiteral("worldclock"))
    , m_cities(cities)
    , m_favourites(favourites)
    , m_settings(environment.settings)
    , m_focusList(new Spinner(this))
{
    m_focusList->setObjectName(QStringLiteral("focusSpinner"));
    m_focusList->setWrapping(true);
    watchSpinner(*m_focusList);
    setBackgroundPicture(L"back.jpg");
}

void WorldClockScreen::initialise()
{
    m_bigFont = Painting::makeFont(34, Painting::Bold);
    m_font = Painting::makeFont(23, Painting::Bold);
    m_nameFont = Painting::makeFont(18, Painting::Bold);
    m_smallFont = Painting::makeFont(15, Painting::Bold);
    m_movedLeft = m_movedRight = false;
    readSettings();
    computeOffsets();
    m_focusList->setItems({QStringLiteral("c"), QStringLiteral("w"), QStringLiteral("c1"), QStringLiteral("w1"),
        QStringLiteral("c2"), QStringLiteral("w2"), QStringLiteral("c3"), QStringLiteral("w3"), QStringLiteral("c4"),
        QStringLiteral("w4")});
    m_focusList->setCurrentIndex(0);
    m_focusList->setFocus();
    formatTexts();
    startScreenTimer(TickTimer, 1000);
    makeHomeFavourite();
    softKeys()->setItemChecked(Commands::TwelveHourClocks, m_twelveHour);
}

void WorldClockScreen::readSettings()
{
    // "syncltz" is created when missing, but the clocks always run with synchronisation off.
    ReadSetting(m_settings, Settings::SyncLocalZone);
    m_syncLocalZone = false;
    m_twelveHour = ReadSetting(m_settings, Settings::TwelveHour) == 1;
    for (int i = 0; i < SlotCount; ++i)
        m_cityOf[static_cast<std::size_t>(i)] = ReadSetting(m_settings, *SlotSettings[static_cast<std::size_t>(i)]);
}

void WorldClockScreen::computeOffsets()
{
    std::array<CityZoneTexts, SlotCount> zones;
    for (std::size_t i = 0; i < SlotCount; ++i) {
        const CityRecord city = m_cities.Record(m_cityOf[i]);
        zones[i] = zoneTexts(city);
        m_names[i] = QString::fromStdWString(city.name);
        m_favourite[i] = !city.name.empty() && m_favourites.findByName(city.name) != 0;
    }
    const DeviceClock& clock = environment().clock;
    const SystemTime now = clock.localTime();
    m_device = ComputeDeviceOffset(m_syncLocalZone, clock.standardBias(), zones[0], now);
    ComputeCityOffsets(m_slots, zones, m_syncLocalZone, clock.standardBias(), m_device, now);
}

void WorldClockScreen::formatTexts()
{
    const SystemTime now = environment().clock.localTime();
    m_texts[0] = FormatHomeSlot(m_slots[0], now);
    for (std::size_t i = 1; i < SlotCount; ++i)
        m_texts[i] = FormatCitySlot(m_slots[i], m_device, now);
    for (std::size_t i = 0; i < SlotCount; ++i)
        m_handTimes[i] = handTime(m_texts[i].time, now);
}

// A fresh home city gets a weather favourite from its country's list, without asking.
void WorldClockScreen::makeHomeFavourite()
{
    if (m_favourite[0])
        return;
    addFavourite(m_cityOf[0]);
    m_settings.GetDWORD(Settings::WeatherPosition.subkey, Settings::WeatherPosition.name);
    if (m_settings.Status() != RegistrySettings::Read)
        WriteSetting(m_settings, Settings::WeatherPosition, m_cityOf[0]);
}

bool WorldClockScreen::addFavourite(std::uint32_t cityIndex)
{
    const CityRecord city = m_cities.Record(cityIndex);
    const auto code = CountryCityList::read(environment().paths, city.country).codeOf(city.name);
    if (city.name.empty() || !code)
        return false;
    const std::wstring updateKey = std::wstring(WeatherFavourites::InitialUpdateDate) + L":" + city.country;
    if (!m_favourites.addFavourite(city.name, *code, L"", updateKey))
        return false;
    for (std::size_t i = 0; i < SlotCount; ++i)
        m_favourite[i] = m_favourite[i] || m_cityOf[i] == cityIndex;
    return true;
}

QString WorldClockScreen::shownTime(int slot) const
{
    const std::wstring& time = m_texts[static_cast<std::size_t>(slot)].time;
    return QString::fromStdWString(m_twelveHour ? ToTwelveHour(time).time : time);
}

QString WorldClockScreen::shownSuffix(int slot) const
{
    return m_twelveHour ? QString::fromStdWString(ToTwelveHour(m_texts[static_cast<std::size_t>(slot)].time).suffix)
                        : QString();
}

QString WorldClockScreen::shownDate(int slot) const
{
    return QString::fromStdWString(m_texts[static_cast<std::size_t>(slot)].date);
}

QString WorldClockScreen::shownName(int slot) const
{
    const SlotLayout& cell = m_layout[static_cast<std::size_t>(slot)];
    int right = cell.timeRightAligned ? timeLeft(slot) - 6 : cell.weather.left() - 3;
    if (cell.datePlace != DatePlace::Below)
        right = std::min(right, dateLeft(slot) - 6);
    return Painting::shortenToFit(
        QFontMetrics(*cell.nameFont), m_names[static_cast<std::size_t>(slot)], right - cell.name.x());
}

int WorldClockScreen::timeLeft(int slot) const
{
    const SlotLayout& cell = m_layout[static_cast<std::size_t>(slot)];
    if (!cell.timeRightAligned)
        return cell.time.x();
    const QString suffix = shownSuffix(slot);
    const int suffixWidth = suffix.isEmpty() ? 0 : QFontMetrics(m_smallFont).horizontalAdvance(suffix) + 3;
    return cell.time.x() - QFontMetrics(*cell.timeFont).horizontalAdvance(shownTime(slot)) - suffixWidth;
}

void WorldClockScreen::layout(int width, int height)
{
    m_focusList->hideAt(width - 25, 10);
    m_titleBand = QRect(0, 0, width, TitleHeight);
    layoutHome(width, height);
    layoutCities(width, height);
}

// The home clock's panel under the title band: a large dial, the name, the time with seconds and the
// date with the year. On a wide work area the panel is lower, with the date beside the name.
void WorldClockScreen::layoutHome(int width, int height)
{
    const bool wide = width > height;
    SlotLayout& home = m_layout[0];
    const int dialSize = wide ? 56 : 68;
    home.area = QRect(0, TitleHeight, width, dialSize + 12);
    home.dial = QRect(6, TitleHeight + 6, dialSize, dialSize);
    home.weather = QRect(width - WeatherIconSize - 6, TitleHeight + 6, WeatherIconSize, WeatherIconSize);
    home.name = QPoint(home.dial.right() + 11, TitleHeight + 3);
    home.nameFont = &m_font;
    home.time = QPoint(home.name.x(), TitleHeight + (wide ? 22 : 26));
    home.timeRightAligned = false;
    home.timeFont = &m_bigFont;
    home.date = wide ? QPoint(home.weather.left() - 6, TitleHeight + 8) : QPoint(home.name.x(), TitleHeight + 60);
    home.datePlace = wide ? DatePlace::RightOfName : DatePlace::Below;
}

// One row per city under the home clock: dial, name and date on the left, the time on the right.
// Rows too low for two lines carry the date on the name's line.
void WorldClockScreen::layoutCities(int width, int height)
{
    const int top = m_layout[0].area.bottom() + 3;
    const int rowHeight = (height - top) / 4;
    const bool twoLines = rowHeight >= 36;
    for (int k = 1; k < SlotCount; ++k) {
        SlotLayout& row = m_layout[static_cast<std::size_t>(k)];
        const int y = top + (k - 1) * rowHeight;
        row.area = QRect(0, y, width, rowHeight);
        const int dialSize = std::min(rowHeight - 4, 36);
        row.dial = QRect(5, y + (rowHeight - dialSize) / 2, dialSize, dialSize);
        row.weather = QRect(
            width - WeatherIconSize - 5, y + (rowHeight - WeatherIconSize) / 2, WeatherIconSize, WeatherIconSize);
        row.nameFont = &m_nameFont;
        row.name
            = QPoint(row.dial.right() + 8, twoLines ? y + 2 : y + (rowHeight - QFontMetrics(m_nameFont).height()) / 2);
        row.timeFont = &m_font;
        row.timeRightAligned = true;
        row.time = QPoint(row.weather.left() - 7, y + (rowHeight - QFontMetrics(m_font).height()) / 2);
        row.datePlace = twoLines ? DatePlace::Below : DatePlace::BeforeTime;
        row.date = twoLines ? QPoint(row.name.x(), y + 22)
                            : QPoint(0, y + (rowHeight - QFontMetrics(m_smallFont).height()) / 2);
    }
}

int WorldClockScreen::dateLeft(int slot) const
{
    const SlotLayout& cell = m_layout[static_cast<std::size_t>(slot)];
    const int width = QFontMetrics(m_smallFont).horizontalAdvance(shownDate(slot));
    switch (cell.datePlace) {
    case DatePlace::RightOfName:
        return cell.date.x() - width;
    case DatePlace::BeforeTime:
        return timeLeft(slot) - 8 - width;
    case DatePlace::Below:
        break;
    }
    return cell.date.x();
}

void WorldClockScreen::paint(QPainter& painter)
{
    if (dirtyRect().intersects(m_titleBand))
        paintTitle(painter);
    for (int k = 0; k < SlotCount; ++k) {
        if (dirtyRect().intersects(m_layout[static_cast<std::size_t>(k)].area))
            paintSlot(painter, k);
    }
    paintFocus(painter);
}

void WorldClockScreen::paintTitle(QPainter& painter) const
{
    Painting::drawBand(painter, m_titleBand, TitleBand, Painting::loadString(40008), m_font);
    const int width = workWidth();
    if (m_movedLeft)
        Icons::draw(painter, Icons::LeftArrow, width - 60, 0, 24);
    else
        Icons::draw(painter, Icons::LeftArrow, width - 52, 5, 16);
    if (m_movedRight)
        Icons::draw(painter, Icons::RightArrow, width - 39, 0, 24);
    else
        Icons::draw(painter, Icons::RightArrow, width - 31, 5, 16);
}

void WorldClockScreen::paintSlot(QPainter& painter, int slot) const
{
    const auto index = static_cast<std::size_t>(slot);
    const SlotLayout& cell = m_layout[index];
    if (slot > 1 || (slot == 1 && cell.area.left() == 0)) {
        painter.fillRect(
            QRect(cell.area.left() + 4, cell.area.top() - 1, cell.area.width() - 8, 1), QColor(255, 255, 255, 40));
    }
    ClockDial::drawFace(painter, cell.dial);
    ClockDial::drawHands(painter, cell.dial, m_handTimes[index], slot == 0);
    paintWeatherIcon(painter, cell.weather, m_favourite[index]);

    painter.setFont(*cell.nameFont);
    drawShadowedText(painter, cell.name, shownName(slot), Painting::White);

    // The time, then its AM/PM mark three pixels to its right, on the time's baseline.
    painter.setFont(*cell.timeFont);
    const QString time = shownTime(slot);
    const int timeX = timeLeft(slot);
    drawShadowedText(painter, QPoint(timeX, cell.time.y()), time, Painting::White);
    painter.setFont(m_smallFont);
    if (const QString suffix = shownSuffix(slot); !suffix.isEmpty()) {
        const int suffixTop
            = cell.time.y() + QFontMetrics(*cell.timeFont).ascent() - QFontMetrics(m_smallFont).ascent();
        const int timeWidth = QFontMetrics(*cell.timeFont).horizontalAdvance(time);
        drawShadowedText(painter, QPoint(timeX + timeWidth + 3, suffixTop), suffix, Painting::White);
    }

    const QString date = shownDate(slot);
    const QPoint datePoint(dateLeft(slot), cell.date.y());
    drawShadowedText(painter, datePoint, date, QColor(220, 232, 245));
    // Cities whose daylight saving is running now carry a "DST" mark after their date, or on the dial
    // when the date shares the name's line.
    if (m_slots[index].observes && m_slots[index].offset != Wtol(m_cities.TimeZoneText(m_cityOf[index]))) {
        if (cell.datePlace == DatePlace::Below) {
            const int dateWidth = QFontMetrics(m_smallFont).horizontalAdvance(date);
            drawShadowedText(painter, datePoint + QPoint(dateWidth + 8, 0), QStringLiteral("DST"), DaylightMark);
        } else {
            painter.setRenderHint(QPainter::Antialiasing);
            painter.setPen(QColor(60, 40, 0));
            painter.setBrush(DaylightMark);
            painter.drawEllipse(QRectF(cell.dial.right() - 7, cell.dial.top(), 8, 8));
        }
    }
}

void WorldClockScreen::paintWeatherIcon(QPainter& painter, const QRect& box, bool favourite) const
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const double w = box.width();
    const QPointF o = box.topLeft();
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 206, 46, favourite ? 255 : 150));
    painter.drawEllipse(o + QPointF(w * 0.62, w * 0.34), w * 0.24, w * 0.24);
    QPainterPath cloud;
    cloud.addEllipse(o + QPointF(w * 0.30, w * 0.62), w * 0.22, w * 0.20);
    cloud.addEllipse(o + QPointF(w * 0.50, w * 0.52), w * 0.24, w * 0.24);
    cloud.addEllipse(o + QPointF(w * 0.70, w * 0.66), w * 0.20, w * 0.17);
    cloud.addRect(QRectF(o + QPointF(w * 0.30, w * 0.62), QSizeF(w * 0.40, w * 0.21)));
    painter.setBrush(QColor(255, 255, 255, favourite ? 255 : 150));
    painter.drawPath(cloud.simplified());
    painter.restore();
}

void WorldClockScreen::paintFocus(QPainter& painter) const
{
    const int entry = m_focusList->currentIndex();
    if (entry < 0)
        return;
    const SlotLayout& cell = m_layout[static_cast<std::size_t>(entry / 2)];
    const QRect target = (entry % 2 == 0 ? cell.dial : cell.weather).adjusted(-3, -3, 3, 3);
    Painting::drawRaisedEdge(
        painter, target.left(), target.top(), target.left() + target.width(), target.top() + target.height());
}

void WorldClockScreen::timerTick(int)
{
    refresh();
}

void WorldClockScreen::refresh()
{
    const auto before = m_texts;
    const SystemTime now = environment().clock.localTime();
    // Once a minute the offsets are computed again, so a daylight-saving change shows at once.
    if (now.second == 0)
        computeOffsets();
    formatTexts();
    if (IsDeviceMidnight(m_texts[0])) {
        update();
        return;
    }
    for (int k = 0; k < SlotCount; ++k) {
        const auto index = static_cast<std::size_t>(k);
        if (k == 0 || m_texts[index].time != before[index].time || m_texts[index].date != before[index].date)
            update(m_layout[index].area);
    }
    if (m_movedLeft || m_movedRight) {
        m_movedLeft = m_movedRight = false;
        update(m_titleBand);
    }
}

void WorldClockScreen::spinnerDelta(Spinner&, int delta)
{
    m_movedLeft = delta < 0;
    m_movedRight = delta > 0;
    update();
}

void WorldClockScreen::command(int id)
{
    if (id == Commands::TwelveHourClocks) {
        toggleTwelveHour();
        return;
    }
    if (id != Commands::Ok) {
        Screen::command(id);
        return;
    }
    const int entry = m_focusList->currentIndex();
    if (entry < 0)
        return;
    if (entry % 2 == 0)
        changeCity(entry / 2);
    else
        showWeather(entry / 2);
}

void WorldClockScreen::toggleTwelveHour()
{
    const bool wasTwelveHour = ReadSetting(m_settings, Settings::TwelveHour) == 1;
    m_twelveHour = !wasTwelveHour;
    update();
    softKeys()->setItemChecked(Commands::TwelveHourClocks, m_twelveHour);
    WriteSetting(m_settings, Settings::TwelveHour, m_twelveHour ? 1 : 0);
}

void WorldClockScreen::changeCity(int slot)
{
    const auto index = static_cast<std::size_t>(slot);
    SelectDialog dialog(environment(), window());
    dialog.setMode(SelectDialog::Mode::City);
    dialog.setSelection(static_cast<int>(m_cityOf[index]));
    runModal(dialog);
    if (window().isExiting())
        return;
    m_cityOf[index] = static_cast<std::uint32_t>(dialog.selection());
    WriteSetting(m_settings, *SlotSettings[index], m_cityOf[index]);
    m_focusList->setFocus();
    computeOffsets();
    formatTexts();
    update();
}

void WorldClockScreen::showWeather(int slot)
{
    const auto index = static_cast<std::size_t>(slot);
    if (m_favourite[index])
        return;
    const bool added = addFavourite(m_cityOf[index]);
    MessageBox::show(this, Painting::loadString(added ? 40041 : 40039), QStringLiteral("Wanderkit"), QMessageBox::Ok,
        QMessageBox::Information);
    update();
}

void WorldClockScreen::destroyWork()
{
    for (std::size_t i = 0; i < SlotCount; ++i)
        WriteSetting(m_settings, *SlotSettings[i], m_cityOf[i]);
}

void WorldClockScreen::tourVisit()
{
    // The tour also shows the Select dialog, as opened from the first world clock.
    m_focusList->setCurrentIndex(2);
    command(Commands::Ok);
}
