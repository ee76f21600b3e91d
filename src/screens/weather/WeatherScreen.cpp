// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/weather/WeatherScreen.h"

#include "device/DeviceClock.h"
#include "device/DevicePaths.h"
#include "screens/weather/FavouritesDialog.h"
#include "session/HomeCity.h"
#include "settings/MappingFile.h"
#include "settings/SettingsTable.h"
#include "store/WeatherFavourites.h"
#include "text/WideText.h"
#include "time/CalendarDays.h"
#include "time/CityDaylight.h"
#include "ui/Commands.h"
#include "ui/DeviceWindow.h"
#include "ui/MessageBox.h"
#include "ui/Painting.h"
#include "ui/SoftKeyBar.h"
#include "ui/Spinner.h"
#include "ui/StringIds.h"
#include "ui/TitleBand.h"
#include "ui/WideString.h"
#include "weather/OpenMeteoForecast.h"
#include "weather/WeatherTexts.h"

#include <QFile>
#include <QPainter>

#include <functional>

namespace {

constexpr int IconSize = 48;
constexpr int RowHeight = 20;
constexpr int Margin = 6;
constexpr int DaySpinnerWidth = 72;
const QColor Pale {222, 234, 244}; // labels on the gradient

// A weather icon with its corner colour made transparent, as the handheld drew it; null when missing.
QImage loadIcon(const DevicePaths& paths, const std::wstring& devicePath)
{
    const auto host = paths.hostPath(devicePath);
    QImage image;
    if (!host || !image.load(QString::fromStdString(host->string())))
        return {};
    image = image.convertToFormat(QImage::Format_ARGB32);
    const QRgb key = image.pixel(0, 0);
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x)
            line[x] = line[x] == key ? qRgba(0, 0, 0, 0) : line[x];
    }
    return image;
}

// Draws `text` with its top at `top`, shortened to end before `right`.
void drawText(QPainter& painter, const QFont& font, int left, int top, int right, const QString& text)
{
    Painting::drawTextAt(painter, font, left, top, Painting::shortenToFit(QFontMetrics(font), text, right - left + 1));
}

} // namespace

// The tour's sample forecast lives in a resource of this static library, which must be registered by hand.
static void registerTourResource()
{
    Q_INIT_RESOURCE(tour);
}

WeatherScreen::WeatherScreen(ScreenEnvironment& environment, DeviceWindow& window, WeatherFavourites& favourites)
    : Screen(environment, window, MenuBarId::Weather, QStringLiteral("weather"))
    , m_favourites(favourites)
    , m_cities(environment.objects, environment.paths, environment.messages)
    , m_days(addSpinner(QStringLiteral("daySpinner"), std::bind_front(&WeatherScreen::stepDay, this)))
{
    setTitleBand(TitleBand(Painting::ShellBand, StringIds::WorldWeather, Painting::makeFont(23, Painting::Bold)));
    m_days->setWrapping(true);
    // "Update Forecast" does nothing.
    onCommand({Commands::ChangeCity, Commands::Ok}, std::bind_front(&WeatherScreen::changeFavourite, this));
}

void WeatherScreen::setEntryCity(const std::wstring& cityName)
{
    m_entryMode = true;
    m_favouriteName = cityName;
}

void WeatherScreen::initialise()
{
    readHomeCity();
    m_mapping = ReadMappingText(settings(), environment().paths);
    m_favourites.loadFavouritesOnce();
    if (m_entryMode) {
        softKeys()->setItemEnabled(Commands::ChangeCity, false);
        softKeys()->setKeyEnabled(Commands::Services, false);
    } else {
        m_favouritePosition = static_cast<std::int32_t>(ReadSetting(settings(), Settings::WeatherPosition));
        m_favouriteName = m_favourites.getName(static_cast<std::uint32_t>(m_favouritePosition));
    }
    for (int day = 0; day < 7; ++day)
        m_weekdays[static_cast<std::size_t>(day)] = ToQString(WeekdayLabel(day));
    m_iconFolder = ReadSetting(settings(), Settings::IconFolder);
    m_today = environment().clock.localTime();
    m_labelFont = Painting::makeFont(18, Painting::Normal);
    m_valueFont = Painting::makeFont(20, Painting::Normal);
    m_conditionFont = Painting::makeFont(18, Painting::Bold);
    m_cityFont = Painting::makeFont(20, Painting::Bold);
    m_temperatureFont = Painting::makeFont(35, Painting::Bold);
    m_days->setItems(
        {QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3"), QStringLiteral("4"), QStringLiteral("5")});
    m_days->setFont(m_valueFont);
    if (!computeForecast())
        return;
    m_days->setCurrentIndex(0);
    m_days->setFocus();
}

// The home city is the World Clocks' "clock"; its offset tells whether the favourite's city observes
// daylight saving now, for the city line.
void WeatherScreen::readHomeCity()
{
    m_cities.Load();
    const std::uint32_t home = HomeCity::position(settings());
    m_homeCityName = ToQString(m_cities.CityName(home));
    m_deviceOffset = HomeCity::deviceOffset(m_cities, home, environment().clock);
}

std::optional<ZoneOffset> WeatherScreen::cityOffset()
{
    const std::uint16_t count = m_cities.Count();
    for (std::uint32_t i = 0; i < count; ++i) {
        if (m_cities.CityName(i) != m_favouriteName)
            continue;
        const CityRecord city = m_cities.Record(i);
        return EvaluateCityDaylight({city.timeZone, city.daylightRule}, m_deviceOffset, m_today).effectiveOffset();
    }
    return std::nullopt;
}

bool WeatherScreen::computeForecast()
{
    const ForecastSources sources {m_mapping, m_iconFolder, DevicePaths::ProgramPath, m_temperatureUnit};
    m_display = ForecastDisplay::ofFavourite(m_favourites, m_favouriteName, m_today, sources);
    if (!m_display) {
        environment().boxes.show(this, Painting::loadString(StringIds::ForecastNotAvailable),
            QStringLiteral("Wanderkit"), QMessageBox::Ok, QMessageBox::Information);
        endScreen();
        return false;
    }
    m_cityLine = ToQString(WeatherCityLine(m_favouriteName, cityOffset()));
    showDay(1);
    return true;
}

void WeatherScreen::showDay(int day)
{
    m_currentDay = day;
    m_shown = m_display ? m_display->day(day - 1) : ForecastDayTexts();
    m_icon = m_shown.iconPath.empty() ? QImage() : loadIcon(environment().paths, m_shown.iconPath);
    update();
}

void WeatherScreen::stepDay(int delta)
{
    // A step of 0 is a digit typed on the spinner, which has jumped to that day: the screen follows it.
    showDay(delta == 0 ? m_days->currentIndex() + 1 : SteppedDay(m_currentDay, delta));
}

void WeatherScreen::changeFavourite()
{
    if (m_entryMode)
        return;
    FavouritesDialog dialog(environment(), window(), m_favourites);
    dialog.setCurrentFavourite(m_favouritePosition);
    runModal(dialog);
    // The dialog's favourite is taken however it ended, even when the program ends over it.
    m_favouritePosition = dialog.currentFavourite();
    m_favouriteName = m_favourites.getName(static_cast<std::uint32_t>(m_favouritePosition));
    WriteSetting(settings(), Settings::WeatherPosition, static_cast<std::uint32_t>(m_favouritePosition));
    if (window().isExiting() || !computeForecast())
        return;
    m_days->setCurrentIndex(0);
    m_days->setFocus();
}

QString WeatherScreen::shownWeekday() const
{
    // Day 1 is today.
    return m_weekdays[static_cast<std::size_t>((m_today.dayOfWeek + m_currentDay - 1) % 7)];
}

QString WeatherScreen::cityLine() const
{
    return m_cityLine;
}

QRect WeatherScreen::iconRect() const
{
    return m_icon.isNull() ? QRect() : QRect(m_card.left(), m_card.top(), IconSize, IconSize);
}

// Portrait: the city line, the day line, the day's card and its details one under the other. In a work
// area lower than that (landscape) the day spinner ends the city line and the weekday moves to the end of
// the card's last line; a wide one puts the details in two columns.
void WeatherScreen::layout(int width, int height)
{
    m_weekdayInCard = height < 260;
    m_twoColumns = width >= 440;
    const int inner = width - 2 * Margin;
    const int lineTop = TitleBand::Height + 3;
    const int spinnerLeft = width - Margin - DaySpinnerWidth;
    m_cityBand = QRect(Margin, lineTop, m_weekdayInCard ? spinnerLeft - 4 - Margin : inner, 24);
    const int cardTop = m_weekdayInCard ? lineTop + 26 + 6 : lineTop + 24 + 3 + 26 + 6;
    m_card = QRect(Margin, cardTop, inner, IconSize + 22);
    m_dayBand = m_weekdayInCard ? QRect(Margin, m_card.top() + IconSize, inner - 4, m_card.height() - IconSize)
                                : QRect(Margin, m_cityBand.bottom() + 4, spinnerLeft - 4 - Margin, 26);
    m_days->setGeometry(spinnerLeft, m_weekdayInCard ? lineTop : m_dayBand.top(), DaySpinnerWidth, 26);
    m_details = QRect(Margin, m_card.bottom() + 5, inner, std::max(0, height - m_card.bottom() - 5));
    m_labelWidth = QFontMetrics(m_labelFont).horizontalAdvance(Painting::loadString(StringIds::RealFeel)) + 10;
}

void WeatherScreen::paint(QPainter& painter)
{
    painter.setPen(Painting::White);
    drawText(painter, m_cityFont, m_cityBand.left(), m_cityBand.top(), m_cityBand.right(), m_cityLine);
    paintDay(painter);
    paintWeekday(painter);
    paintDetails(painter);
}

// The weekday and, for a forecast that does not start today, the day's date: on their own line beside the
// day spinner, or at the right end of the card's last line when the work area is low.
void WeatherScreen::paintWeekday(QPainter& painter) const
{
    const QString weekday = shownWeekday();
    const QString date = ToQString(m_shown.date);
    const QFontMetrics metrics(m_cityFont);
    const int top = m_dayBand.top() + (m_dayBand.height() - metrics.height()) / 2;
    const int left = m_weekdayInCard ? m_dayBand.right() - weekdayWidth() : m_dayBand.left();
    painter.setPen(Painting::White);
    drawText(painter, m_cityFont, left, top, m_dayBand.right(), weekday);
    painter.setPen(Pale);
    drawText(painter, m_valueFont, left + metrics.horizontalAdvance(weekday) + 6, top, m_dayBand.right(), date);
}

// The width of the weekday with its date, as paintWeekday() draws them.
int WeatherScreen::weekdayWidth() const
{
    const int weekday = QFontMetrics(m_cityFont).horizontalAdvance(shownWeekday());
    return m_shown.date.empty() ? weekday
                                : weekday + 6 + QFontMetrics(m_valueFont).horizontalAdvance(ToQString(m_shown.date));
}

// The icon, the temperatures beside it and the weather in words under them.
void WeatherScreen::paintDay(QPainter& painter) const
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 255, 255, 38));
    painter.drawRoundedRect(m_card.adjusted(-3, -3, 3, 3), 6, 6);
    painter.setPen(Painting::White);
    if (m_shown.iconPath.empty()) {
        const QString none = QStringLiteral("No forecast for this day");
        const int top = m_card.top() + (m_card.height() - QFontMetrics(m_valueFont).height()) / 2;
        drawText(painter, m_valueFont, m_card.left() + 8, top, m_card.right(), none);
        return;
    }
    if (!m_icon.isNull())
        painter.drawImage(QRect(m_card.left(), m_card.top(), IconSize, IconSize), m_icon);
    const int textLeft = m_card.left() + IconSize + 8;
    const int temperatureTop = m_card.top() + (IconSize - QFontMetrics(m_temperatureFont).height()) / 2;
    drawText(painter, m_temperatureFont, textLeft, temperatureTop, m_card.right(), ToQString(m_shown.temperatures));
    const int conditionRight = m_weekdayInCard ? m_dayBand.right() - weekdayWidth() - 8 : m_card.right();
    drawText(painter, m_conditionFont, m_card.left() + 2, m_card.top() + IconSize + 2, conditionRight,
        ToQString(m_shown.condition));
}

// Label and value rows, in two columns when the work area is wider than high; the forecast's own date last.
void WeatherScreen::paintDetails(QPainter& painter) const
{
    if (m_shown.iconPath.empty())
        return;
    const QString sun = m_shown.sunrise.empty() && m_shown.sunset.empty()
        ? QString()
        : ToQString(m_shown.sunrise) + QStringLiteral(" - ") + ToQString(m_shown.sunset);
    const std::array<std::pair<QString, QString>, 4> rows {{
        {Painting::loadString(StringIds::RealFeel), ToQString(m_shown.realFeel)},
        {QStringLiteral("Wind"), ToQString(m_shown.wind)},
        {QStringLiteral("Rain"), ToQString(m_shown.precipitation)},
        {QStringLiteral("Sun"), sun},
    }};
    const int columns = m_twoColumns ? 2 : 1;
    const int columnWidth = m_details.width() / columns;
    const int labelWidth = m_labelWidth;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const int left = m_details.left() + static_cast<int>(i) % columns * columnWidth;
        const int top = m_details.top() + static_cast<int>(i) / columns * RowHeight;
        painter.setPen(Pale);
        drawText(painter, m_labelFont, left, top + 1, left + labelWidth - 4, rows[i].first);
        painter.setPen(Painting::White);
        drawText(painter, m_valueFont, left + labelWidth, top, left + columnWidth - 4, rows[i].second);
    }
    if (m_shown.issue.empty())
        return;
    const int rowsHeight = static_cast<int>(rows.size()) / columns * RowHeight;
    painter.setPen(Pale);
    drawText(painter, m_labelFont, m_details.left(), m_details.top() + rowsHeight + 4, m_details.right(),
        ToQString(m_shown.issue));
}

void WeatherScreen::tourPrepare()
{
    registerTourResource();
    QFile file(QStringLiteral(":/tour/forecast.json"));
    std::string error;
    const auto sample
        = file.open(QIODevice::ReadOnly) ? OpenMeteoForecast::read(file.readAll().toStdString(), error) : std::nullopt;
    m_favourites.loadFavouritesOnce();
    const auto position = ReadSetting(settings(), Settings::WeatherPosition);
    const std::wstring name = m_favourites.getName(position);
    if (!sample || name.empty() || !m_favourites.getForecastText(position).empty())
        return;
    // Dated so that its first day is today.
    const SystemTime lastDay = AddDays(environment().clock.localTime(), ForecastTable::Blocks - 1);
    const std::wstring updateKey = FormatText(L"%02d/%02d/%04d:", lastDay.day, lastDay.month, lastDay.year)
        + m_favourites.getCountryFile(position);
    m_favourites.updateFavourite(name, m_favourites.getLocationCode(position), sample->table().joined(), updateKey, 1);
}

void WeatherScreen::tourVisit()
{
    // The favourites dialog as "Change City" opens it, then its Add view.
    FavouritesDialog list(environment(), window(), m_favourites);
    list.setCurrentFavourite(m_favouritePosition);
    runModal(list);
    FavouritesDialog adding(environment(), window(), m_favourites, QStringLiteral("favourites-add"));
    adding.setCurrentFavourite(m_favouritePosition);
    adding.openInAddView();
    runModal(adding);
}
