// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/DeviceWindow.h"

#include "ui/Commands.h"
#include "ui/MenuBars.h"
#include "ui/Screen.h"
#include "ui/SoftKeyBar.h"

#include <QApplication>
#include <QEventLoop>
#include <QKeyEvent>
#include <QScreen>

DeviceWindow::DeviceWindow(QSize workArea)
    : m_workArea(workArea)
    , m_workAreaWidget(new QWidget(this))
{
    setObjectName(QStringLiteral("deviceWindow"));
    setWindowTitle(QStringLiteral("Wanderkit"));
    m_workAreaWidget->setObjectName(QStringLiteral("workArea"));
    placeChildren();
    qApp->installEventFilter(this);
    if (QScreen* screen = QGuiApplication::primaryScreen())
        connect(screen, &QScreen::orientationChanged, this, &DeviceWindow::followOrientation);
}

DeviceWindow::~DeviceWindow()
{
    qApp->removeEventFilter(this);
}

void DeviceWindow::setWorkArea(QSize size)
{
    m_workArea = size;
    placeChildren();
}

void DeviceWindow::placeChildren()
{
    setFixedSize(m_workArea.width(), m_workArea.height() + SoftKeyBar::BarHeight);
    m_workAreaWidget->setGeometry(0, 0, m_workArea.width(), m_workArea.height());
    for (const Run& run : m_runs) {
        run.screen->setGeometry(0, 0, m_workArea.width(), m_workArea.height());
        run.softKeys->setGeometry(0, m_workArea.height(), m_workArea.width(), SoftKeyBar::BarHeight);
    }
}

void DeviceWindow::followOrientation(Qt::ScreenOrientation orientation)
{
    const bool landscape = orientation == Qt::LandscapeOrientation || orientation == Qt::InvertedLandscapeOrientation;
    const bool portrait = orientation == Qt::PortraitOrientation || orientation == Qt::InvertedPortraitOrientation;
    const bool wide = m_workArea.width() > m_workArea.height();
    if ((landscape && !wide) || (portrait && wide))
        rotate();
}

Screen* DeviceWindow::topScreen() const
{
    return m_runs.empty() ? nullptr : m_runs.back().screen;
}

SoftKeyBar* DeviceWindow::topSoftKeys() const
{
    return m_runs.empty() ? nullptr : m_runs.back().softKeys;
}

int DeviceWindow::run(Screen& screen)
{
    if (m_exiting)
        return 0;
    const MenuBarLayout* bar = MenuBars::find(screen.menuBarId());
    Q_ASSERT(bar);
    auto* softKeys = new SoftKeyBar(*bar, this);
    connect(softKeys, &SoftKeyBar::commandTriggered, &screen, &Screen::sendCommand);
    m_runs.push_back({&screen, softKeys, nullptr});
    screen.setParent(m_workAreaWidget);
    placeChildren();
    showTop();

    if (screen.beginRun(*softKeys)) {
        emit screenShown(screen);
        if (!screen.hasEnded()) {
            QEventLoop loop;
            m_runs.back().loop = &loop;
            loop.exec();
        }
    }
    const int result = screen.finishRun();

    m_runs.pop_back();
    screen.hide();
    screen.setParent(nullptr);
    delete softKeys;
    showTop();
    // Once every run has unwound, the exit is complete.
    if (m_runs.empty())
        m_exiting = false;
    return result;
}

void DeviceWindow::showTop()
{
    for (std::size_t i = 0; i < m_runs.size(); ++i) {
        const bool top = i + 1 == m_runs.size();
        m_runs[i].screen->setVisible(top);
        m_runs[i].softKeys->setVisible(top);
    }
    if (Screen* screen = topScreen()) {
        setWindowTitle(screen->windowTitle());
        screen->raise();
        QWidget* focus = screen->focusWidget();
        (focus ? focus : screen)->setFocus(Qt::OtherFocusReason);
    }
}

void DeviceWindow::screenEnded(Screen& screen)
{
    for (const Run& run : m_runs) {
        if (run.screen == &screen && run.loop)
            run.loop->exit(0);
    }
}

void DeviceWindow::exitAll()
{
    m_exiting = true;
    for (auto it = m_runs.rbegin(); it != m_runs.rend(); ++it)
        it->screen->endScreen(0);
}

void DeviceWindow::closeEvent(QCloseEvent* event)
{
    if (!m_runs.empty())
        exitAll();
    QWidget::closeEvent(event);
}

bool DeviceWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress || !watched->isWidgetType())
        return false;
    if (QApplication::activePopupWidget() || QApplication::activeModalWidget())
        return false;
    if (static_cast<QWidget*>(watched)->window() != this)
        return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    return handleDeviceKey(key->key(), key->modifiers());
}

bool DeviceWindow::handleDeviceKey(int key, Qt::KeyboardModifiers modifiers)
{
    SoftKeyBar* softKeys = topSoftKeys();
    if (!softKeys)
        return false;
    switch (key) {
    case Qt::Key_F1:
        softKeys->pressLeft();
        return true;
    case Qt::Key_F2:
        softKeys->pressRight();
        return true;
    case Qt::Key_Escape:
        topScreen()->backKey();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        topScreen()->sendCommand(Commands::Ok);
        return true;
    case Qt::Key_R:
        if (modifiers & Qt::ControlModifier) {
            rotate();
            return true;
        }
        return false;
    default:
        return false;
    }
}
