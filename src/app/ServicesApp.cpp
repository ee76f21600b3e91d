// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ServicesApp.h"

#include "app/ServiceTable.h"
#include "screens/weather/WeatherScreen.h"
#include "settings/SettingsTable.h"
#include "ui/BusyCursor.h"
#include "ui/Commands.h"
#include "ui/Icons.h"
#include "ui/MessageBox.h"
#include "ui/Painting.h"
#include "ui/Spinner.h"

#include <QKeyEvent>
#include <QPainter>

#include <functional>

namespace {

constexpr int Columns = 4;

} // namespace

ServicesApp::ServicesApp(ScreenEnvironment& environment, DeviceWindow& window)
    : Screen(environment, window, MenuBarId::Launcher, QStringLiteral("launcher"))
    , m_selector(addSpinner(QStringLiteral("serviceSpinner"), std::bind_front(&ServicesApp::pressArrow, this)))
    , m_cities(environment.objects, environment.paths, environment.messages)
    , m_favourites(environment.objects, environment.paths, environment.messages)
    , m_currencies(environment.objects)
{
    m_selector->setWrapping(true);
    // Amounts typed into the converters last only while the program runs.
    keepSetting(Settings::CurrencyAmount, [] { return std::wstring(); });
    keepSetting(Settings::MeasureValue, [] { return std::wstring(); });
    onCommand({Commands::Ok}, [this] { openService(selection()); });
    // The launcher is left by "Exit" only.
    onCommand({Commands::Services, Commands::Done}, [] {});
    ServiceContext context {environment, window, {m_cities, m_favourites, m_initialCurrencies}, *this};
    for (std::size_t i = 0; i < m_screens.size(); ++i) {
        if (const auto make = Services()[i].makeScreen)
            m_screens[i] = make(context);
    }
}

ServicesApp::~ServicesApp() = default;

int ServicesApp::selection() const
{
    return m_selector->currentIndex();
}

Screen* ServicesApp::serviceScreen(int index) const
{
    return index >= 0 && index < ServiceCount ? m_screens[static_cast<std::size_t>(index)].get() : nullptr;
}

void ServicesApp::openWeather(Screen& opener, const std::wstring& cityName)
{
    for (const auto& screen : m_screens) {
        if (auto* weather = qobject_cast<WeatherScreen*>(screen.get())) {
            weather->setEntryCity(cityName);
            opener.runModal(*weather);
        }
    }
}

void ServicesApp::initialise()
{
    m_leftPressed = false;
    m_rightPressed = false;
    loadStores();
    m_labelFont = Painting::makeFont(25, Painting::Bold);
    m_selector->clear();
    for (std::size_t i = 0; i < m_labels.size(); ++i) {
        m_labels[i] = Painting::loadString(Services()[i].labelId);
        m_selector->addItem(m_labels[i]);
    }
    m_selector->setCurrentIndex(0);
    m_selector->setFocus();
}

// The stores are filled from the shipped files on the first start only; the currency file is read
// at every start, since the converter is handed its list.
void ServicesApp::loadStores()
{
    ScreenEnvironment& env = environment();
    {
        const BusyCursor busy;
        m_cities.Load();
    }
    {
        const BusyCursor busy;
        m_favourites.loadFavouritesOnce();
    }
    const BusyCursor busy;
    m_initialCurrencies = ReadInitialCurrencies(env.paths, env.messages);
    m_currencies.SetInitialList(m_initialCurrencies);
    m_currencies.Load();
}

void ServicesApp::layout(int width, int height)
{
    m_selector->hideAt(width - 25, 10);
    m_labelBand = QRect(0, height - 40, width, 40);
}

int ServicesApp::iconX(int index) const
{
    const int width = workWidth();
    const int cell = width / Columns;
    return (index % Columns) * width / Columns + (cell - 16) / 2;
}

int ServicesApp::iconY(int index) const
{
    return index / Columns == 0 ? 50 : 80;
}

QRect ServicesApp::highlightRect() const
{
    const int index = selection();
    if (index < 0)
        return {};
    const int x = iconX(index);
    return QRect(x - 2, iconY(index) - 2, 20, 20);
}

QRect ServicesApp::iconTarget(int index) const
{
    const int width = workWidth();
    const int column = index % Columns;
    const int left = column * width / Columns;
    return QRect(left, iconY(index) - 7, (column + 1) * width / Columns - left, 30);
}

QRect ServicesApp::bigIconTarget() const
{
    return QRect((workWidth() - 32) / 2, workHeight() - 124, 32, 32).adjusted(-8, -8, 8, 8);
}

QRect ServicesApp::labelTarget() const
{
    return m_labelBand.adjusted(arrowTarget(-1).width(), 0, -arrowTarget(1).width(), 0);
}

QRect ServicesApp::arrowTarget(int step) const
{
    // The arrows' pressed size, widened to a fingertip.
    constexpr int Width = 48;
    return QRect(step < 0 ? 0 : workWidth() - Width, m_labelBand.top(), Width, m_labelBand.height());
}

// A tap picks a service as the arrows would (same feedback); on the chosen one, the big icon or the
// label it is the action key.
void ServicesApp::tap(QPoint at)
{
    for (const int step : {-1, 1}) {
        if (arrowTarget(step).contains(at)) {
            m_selector->step(step);
            return;
        }
    }
    if (bigIconTarget().contains(at) || labelTarget().contains(at)) {
        sendCommand(Commands::Ok);
        return;
    }
    for (int i = 0; i < ServiceCount; ++i) {
        if (!iconTarget(i).contains(at))
            continue;
        if (i == selection())
            sendCommand(Commands::Ok);
        else
            m_selector->step(i - selection());
        return;
    }
}

void ServicesApp::paint(QPainter& painter)
{
    const int width = workWidth();
    const int height = workHeight();
    for (int i = 0; i < ServiceCount; ++i)
        Icons::draw(painter, Services()[static_cast<std::size_t>(i)].iconId, iconX(i), iconY(i), 16);
    Icons::draw(painter, Icons::Service, (width - 32) / 2, height - 124, 32);
    Icons::draw(painter, Icons::LeftArrow, 20, m_leftPressed ? height - 34 : height - 30, m_leftPressed ? 24 : 16);
    Icons::draw(
        painter, Icons::RightArrow, width - 35, m_rightPressed ? height - 34 : height - 30, m_rightPressed ? 24 : 16);

    if (const QRect edge = highlightRect(); !edge.isNull())
        Painting::drawRaisedEdge(
            painter, edge.left(), edge.top(), edge.left() + edge.width(), edge.top() + edge.height());

    const QString label = m_labels[static_cast<std::size_t>(std::max(0, selection()))];
    painter.setFont(m_labelFont);
    painter.setPen(Painting::White);
    const QFontMetrics metrics(m_labelFont);
    painter.drawText((width - metrics.horizontalAdvance(label)) / 2, height - 35 + metrics.ascent(), label);
}

void ServicesApp::pressArrow(int delta)
{
    if (delta < 0) {
        m_leftPressed = true;
        startScreenTimer(LeftArrowTimer, 250);
    } else if (delta >= 1) {
        m_rightPressed = true;
        startScreenTimer(RightArrowTimer, 250);
    }
    update();
}

void ServicesApp::timerTick(int)
{
    // Either timer ends the feedback of both arrows: the timers act as one-shots.
    if (m_leftPressed) {
        m_leftPressed = false;
        stopScreenTimer(LeftArrowTimer);
    }
    if (m_rightPressed) {
        m_rightPressed = false;
        stopScreenTimer(RightArrowTimer);
    }
    update(m_labelBand);
}

void ServicesApp::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down) {
        Screen::keyPressEvent(event);
        return;
    }
    environment().boxes.show(this, QStringLiteral("e"), QString());
    update();
}

void ServicesApp::openService(int index)
{
    if (Screen* screen = serviceScreen(index)) {
        screen->openedAsService();
        runModal(*screen);
    }
}
