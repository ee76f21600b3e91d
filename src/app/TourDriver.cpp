// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/TourDriver.h"

#include "app/ServicesApp.h"
#include "ui/Commands.h"
#include "ui/DeviceWindow.h"

#include <QDir>
#include <QTimer>

TourDriver::TourDriver(DeviceWindow& window, ServicesApp& launcher, QString folder)
    : m_window(window)
    , m_launcher(launcher)
    , m_folder(std::move(folder))
{
    QDir().mkpath(m_folder);
    connect(&m_window, &DeviceWindow::screenShown, this,
        [this](Screen& screen) { QTimer::singleShot(0, this, [this, &screen] { visit(screen); }); });
}

void TourDriver::visit(Screen& screen)
{
    if (!screen.isRunning())
        return;
    capture(screen);
    if (&screen == &m_launcher) {
        nextService();
        return;
    }
    if (!m_visited.contains(&screen)) {
        m_visited.insert(&screen);
        screen.tourVisit();
    }
    screen.endScreen();
}

void TourDriver::nextService()
{
    while (m_nextService < ServiceCount && !m_launcher.serviceScreen(m_nextService))
        ++m_nextService;
    if (m_nextService >= ServiceCount) {
        m_launcher.sendCommand(Commands::Exit);
        return;
    }
    Screen* service = m_launcher.serviceScreen(m_nextService++);
    service->tourPrepare();
    m_launcher.runModal(*service);
    QTimer::singleShot(0, this, [this] { nextService(); });
}

void TourDriver::capture(const Screen& screen)
{
    const QString base = m_folder + QLatin1Char('/') + screen.screenName();
    if (m_written.contains(base + QStringLiteral(".png")))
        return;
    save(base + QStringLiteral(".png"));
    // The same screen turned on its side, so that a layout fault in either orientation shows.
    m_window.rotate();
    save(base + QStringLiteral("-landscape.png"));
    m_window.rotate();
}

void TourDriver::save(const QString& file)
{
    if (m_window.grab().save(file))
        m_written.append(file);
    else
        m_failed = true;
}
