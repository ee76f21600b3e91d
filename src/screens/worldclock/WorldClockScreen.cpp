// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/worldclock/WorldClockScreen.h"

#include "device/DeviceClock.h"
#include "screens/select/SelectDialog.h"
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
#include "ui/StringIds.h"
#include "ui/TitleBand.h"
#include "ui/WideString.h"

#include <QPainter>

#include <functional>

namespace {

constexpr int TickTimer = 1;
constexpr int TitleHeight = TitleBand::Height;

// The registry value of each slot: "clock", "clock1" ... "clock4".
constexpr const auto& SlotSettings = Settings::ClockCities;
static_assert(SlotSettings.size() == WorldClockScreen::SlotCount);

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

} // namespace

WorldClockScreen::WorldClockScreen(
    ScreenEnvironment& environment, DeviceWindow& window, CityCatalogue& cities, WeatherFavourites& favourites)
    : CityScreen(environment, window, MenuBarId::WorldClocks, QStringLiteral("worldclock"), cities, favourites)
    , m_focusList(addSpinner(QStringLiteral("focusSpinner"), std::bind_front(&WorldClockScreen::showFocusStep, this)))
{
    setTitleBand(TitleBand(Painting::ConverterBand, StringIds::WorldClocks, Painting::makeFont(23, Painting::Bold)));
    m_focusList->setWrapping(true);
    setBackgroundPicture(L"back.jpg");
    for (std::size_t i = 0; i < SlotCount; ++i)
        keepSetting(*SlotSettings[i], [this, i] { return m_cityOf[i]; });
    onCommand({Commands::TwelveHourClocks}, std::bind_front(&WorldClockScreen::toggleTwelveHour, this));
    onCommand({Commands::Ok}, std::bind_front(&WorldClockScreen::openFocusedEntry, this));
}

void WorldClockScreen::initialise()
{
    m_fonts = {Painting::makeFont(34, Painting::Bold), Painting::makeFont(23, Painting::Bold),
        Painting::makeFont(18, Painting::Bold), Painting::makeFont(15, Painting::Bold)};
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
    ReadSetting(settings(), Settings::SyncLocalZone);
    m_syncLocalZone = false;
    m_twelveHour = ReadSetting(settings(), Settings::TwelveHour) == 1;
    for (int i = 0; i < SlotCount; ++i)
        m_cityOf[static_cast<std::size_t>(i)] = ReadSetting(settings(), *SlotSettings[static_cast<std::size_t>(i)]);
}

void WorldClockScreen::computeOffsets()
{
    std::array<CityZoneTexts, SlotCount> zones;
    for (std::size_t i = 0; i < SlotCount; ++i) {
        const CityRecord city = m_cities.Record(m_cityOf[i]);
        zones[i] = zoneTexts(city);
        m_names[i] = ToQString(city.name);
        m_standardOffsets[i] = Wtol(city.timeZone);
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
    settings().GetDWORD(Settings::WeatherPosition.subkey, Settings::WeatherPosition.name);
    if (settings().Status() != RegistrySettings::Read)
        WriteSetting(settings(), Settings::WeatherPosition, m_cityOf[0]);
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
    // Favourites are found by name: a city of another country with the same name is one now too.
    const QString name = ToQString(city.name);
    for (std::size_t i = 0; i < SlotCount; ++i)
        m_favourite[i] = m_favourite[i] || m_names[i] == name;
    return true;
}

ClockView WorldClockScreen::view(int slot) const
{
    const auto index = static_cast<std::size_t>(slot);
    const std::wstring& time = m_texts[index].time;
    const TwelveHourTime twelve = ToTwelveHour(time);
    ClockView view;
    view.name = m_names[index];
    view.time = ToQString(m_twelveHour ? twelve.time : time);
    view.suffix = m_twelveHour ? ToQString(twelve.suffix) : QString();
    view.date = ToQString(m_texts[index].date);
    view.daylightNow = m_slots[index].observes && m_slots[index].offset != m_standardOffsets[index];
    view.favourite = m_favourite[index];
    view.hands = m_handTimes[index];
    view.secondHand = slot == 0;
    return view;
}

QString WorldClockScreen::shownTime(int slot) const
{
    return view(slot).time;
}

QString WorldClockScreen::shownSuffix(int slot) const
{
    return view(slot).suffix;
}

QString WorldClockScreen::shownDate(int slot) const
{
    return view(slot).date;
}

QString WorldClockScreen::shownName(int slot) const
{
    return m_cells[static_cast<std::size_t>(slot)].fittedName(view(slot));
}

void WorldClockScreen::layout(int width, int height)
{
    m_focusList->hideAt(width - 25, 10);
    m_cells = {ClockCell::home(TitleHeight, width, m_fonts)};
    const auto rows = ClockCell::cityRows(m_cells[0].area().bottom() + 3, width, height, m_fonts);
    m_cells.insert(m_cells.end(), rows.begin(), rows.end());
}

void WorldClockScreen::paint(QPainter& painter)
{
    if (dirtyRect().intersects(titleRect()))
        paintTitleArrows(painter);
    for (int k = 0; k < SlotCount; ++k) {
        const ClockCell& cell = m_cells[static_cast<std::size_t>(k)];
        if (dirtyRect().intersects(cell.area()))
            cell.paint(painter, view(k));
    }
    paintFocus(painter);
}

void WorldClockScreen::paintTitleArrows(QPainter& painter) const
{
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

void WorldClockScreen::paintFocus(QPainter& painter) const
{
    const int entry = m_focusList->currentIndex();
    if (entry < 0)
        return;
    const QRect target = entryRect(entry).adjusted(-3, -3, 3, 3);
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
            update(m_cells[index].area());
    }
    if (m_movedLeft || m_movedRight) {
        m_movedLeft = m_movedRight = false;
        update(titleRect());
    }
}

void WorldClockScreen::showFocusStep(int delta)
{
    m_movedLeft = delta < 0;
    m_movedRight = delta > 0;
    update();
}

QRect WorldClockScreen::entryRect(int entry) const
{
    const ClockCell& cell = m_cells[static_cast<std::size_t>(entry / 2)];
    return entry % 2 == 0 ? cell.dial() : cell.weather();
}

int WorldClockScreen::entryAt(QPoint at) const
{
    const int entries = 2 * static_cast<int>(m_cells.size());
    for (int entry = 0; entry < entries; ++entry) {
        if (entryRect(entry).contains(at))
            return entry;
    }
    return -1;
}

// The title's arrows step the focus as Left/Right do; a clock face or weather icon takes the focus
// and gets the action key.
void WorldClockScreen::tap(QPoint at)
{
    const int width = workWidth();
    if (titleRect().contains(at) && at.x() >= width - 64) {
        m_focusList->step(at.x() < width - 38 ? -1 : 1);
        return;
    }
    const int entry = entryAt(at);
    if (entry < 0)
        return;
    m_focusList->setCurrentIndex(entry);
    update();
    command(Commands::Ok);
}

void WorldClockScreen::openFocusedEntry()
{
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
    const bool wasTwelveHour = ReadSetting(settings(), Settings::TwelveHour) == 1;
    m_twelveHour = !wasTwelveHour;
    update();
    softKeys()->setItemChecked(Commands::TwelveHourClocks, m_twelveHour);
    WriteSetting(settings(), Settings::TwelveHour, m_twelveHour ? 1 : 0);
}

void WorldClockScreen::changeCity(int slot)
{
    const auto index = static_cast<std::size_t>(slot);
    SelectDialog dialog(environment(), window());
    dialog.setMode(SelectDialog::Mode::City);
    dialog.setSelection(static_cast<int>(m_cityOf[index]));
    // The dialog has no cancel: its city is taken even when the program ends over it.
    runModal(dialog);
    m_cityOf[index] = static_cast<std::uint32_t>(dialog.selection());
    WriteSetting(settings(), *SlotSettings[index], m_cityOf[index]);
    m_focusList->setFocus();
    computeOffsets();
    formatTexts();
    update();
}

// A city that is not a favourite yet becomes one first; the weather screen then shows its forecast.
void WorldClockScreen::showWeather(int slot)
{
    const auto index = static_cast<std::size_t>(slot);
    if (!m_favourite[index]) {
        const bool added = addFavourite(m_cityOf[index]);
        environment().boxes.show(this,
            Painting::loadString(added ? StringIds::AddedToFavorites : StringIds::ForecastNotAvailable),
            QStringLiteral("Wanderkit"), QMessageBox::Ok, QMessageBox::Information);
        update();
        if (!added)
            return;
    }
    openWeatherFor(m_cityOf[index]);
}

void WorldClockScreen::tourVisit()
{
    // The tour also shows the Select dialog, as opened from the first world clock.
    m_focusList->setCurrentIndex(2);
    command(Commands::Ok);
}
