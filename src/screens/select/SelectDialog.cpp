// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/select/SelectDialog.h"

#include "currency/CurrencyList.h"
#include "device/DeviceClock.h"
#include "session/HomeCity.h"
#include "time/CityInformation.h"
#include "ui/Painting.h"
#include "ui/Spinner.h"
#include "ui/StringIds.h"
#include "ui/TitleBand.h"
#include "ui/WideString.h"

#include <QPainter>

namespace {

constexpr int TitleHeight = 25; // T
constexpr int SpinnerSize = 25; // S

// The panel font, made smaller for a line that would not fit the screen's width.
QFont fittedFont(QFont font, const QString& text, int width)
{
    while (font.pixelSize() > 11 && QFontMetrics(font).horizontalAdvance(text) > width)
        font.setPixelSize(font.pixelSize() - 1);
    return font;
}

} // namespace

SelectDialog::SelectDialog(ScreenEnvironment& environment, DeviceWindow& window)
    : Screen(environment, window, MenuBarId::Select, QStringLiteral("select"))
    , m_cities(environment.objects, environment.paths, environment.messages)
    , m_currencies(environment.objects)
    , m_list(new Spinner(this, Spinner::Orientation::Vertical))
{
    setWindowTitle(QStringLiteral("Wandrekit")); // the handheld's caption of this dialog, misspelt
    m_list->setObjectName(QStringLiteral("choiceSpinner"));
    connect(m_list, &Spinner::currentChanged, this, &SelectDialog::listChanged);
    // A tap on the list steps it on, as Down does.
    connect(m_list, &Spinner::boxTapped, this, [this] { m_list->step(1); });
}

void SelectDialog::initialise()
{
    m_titleFont = Painting::makeFont(24, Painting::Bold);
    setTitleBand(TitleBand(
        Painting::ShellBand, m_mode == Mode::City ? StringIds::SelectCity : StringIds::SelectCurrency, m_titleFont));
    m_listFont = Painting::makeFont(22, Painting::Normal);
    m_panelFont = Painting::makeFont(20, Painting::Normal);
    m_mode == Mode::City ? fillCities() : fillCurrencies();
    m_list->setCurrentIndex(m_selection);
    m_list->setFont(m_listFont);
    m_list->setFocus();
    computePanel();
}

void SelectDialog::fillCities()
{
    m_cities.Load();
    QStringList names;
    const int count = m_cities.Count();
    names.reserve(count);
    for (int i = 0; i < count; ++i)
        names << ToQString(m_cities.CityName(static_cast<std::uint32_t>(i)));
    m_list->setItems(names);
}

void SelectDialog::fillCurrencies()
{
    m_currencies.Load();
    QStringList items;
    const int count = m_currencies.RecordCount();
    for (int i = 0; i < count; ++i) {
        const auto position = static_cast<std::uint32_t>(i);
        const std::wstring code = m_currencies.Code(position);
        const std::wstring name = m_currencies.Name(position);
        // A currency whose code and name are both empty is left out of the list.
        if (IsListedCurrency(code, name))
            items << ToQString(code + L" - " + name);
    }
    m_list->setItems(items);
}

void SelectDialog::listChanged(int index)
{
    if (m_mode == Mode::Currency) {
        m_selection = index;
        return;
    }
    computePanel();
    update();
}

void SelectDialog::computePanel()
{
    m_panelLines.clear();
    const int index = m_list->currentIndex();
    if (m_mode != Mode::City || index < 0)
        return;
    const DeviceClock& clock = environment().clock;
    const DeviceOffset device = HomeCity::deviceOffset(m_cities, HomeCity::position(settings()), clock);
    const CityRecord city = m_cities.Record(static_cast<std::uint32_t>(index));
    for (const std::wstring& line : CityInformationLines(city, device, clock.localTime()))
        m_panelLines << ToQString(line);
}

void SelectDialog::layout(int width, int)
{
    const int listTop = m_mode == Mode::Currency ? TitleHeight + 10 : TitleHeight + 5; // y0
    // The list box (x = 5, width W - 15) and its up-down (S x S at W - 10 - S) are one spinner here.
    m_list->setGeometry(5, listTop, width - 15, SpinnerSize);
    m_list->raise();
    const int infoBottom = listTop + 30 + TitleHeight; // y1
    m_infoBand = QRect(0, listTop + 30, width, infoBottom - (listTop + 30));
    m_panelTop = infoBottom + 5;
}

void SelectDialog::paint(QPainter& painter)
{
    if (m_mode != Mode::City)
        return;
    Painting::drawBand(
        painter, m_infoBand, Painting::ShellBand, Painting::loadString(StringIds::CityInformations), m_titleFont);
    painter.setPen(Qt::black);
    const QStringList& lines = m_panelLines;
    const int width = workWidth() - 10;
    for (int i = 0; i < lines.size(); ++i) {
        const QFont font = fittedFont(m_panelFont, lines[i], width);
        painter.setFont(font);
        painter.drawText(5, m_panelTop + 25 * i + QFontMetrics(font).ascent(), lines[i]);
    }
}

void SelectDialog::destroyWork()
{
    m_selection = m_list->currentIndex();
}
