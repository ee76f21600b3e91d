// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Screen.h"

#include "device/DevicePaths.h"
#include "settings/SettingsTable.h"
#include "ui/Commands.h"
#include "ui/DeviceWindow.h"
#include "ui/Painting.h"
#include "ui/ScreenTimers.h"
#include "ui/Spinner.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPaintEvent>
#include <QPainter>

Screen::Screen(ScreenEnvironment& environment, DeviceWindow& window, MenuBarId menuBarId, QString name)
    : m_environment(environment)
    , m_window(window)
    , m_settings(environment.settings)
    , m_menuBarId(menuBarId)
    , m_name(std::move(name))
{
    setObjectName(m_name + QStringLiteral("Screen"));
    // The caption the title bar shows while the screen is on top; two screens spell it otherwise.
    setWindowTitle(QStringLiteral("Wanderkit"));
    // The screen itself never takes the focus from its controls when Up/Down move between them.
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    hide();
}

Screen::~Screen()
{
    stopAllTimers();
}

void Screen::sendCommand(int command)
{
    if (m_running && !m_ended)
        this->command(command);
}

void Screen::backKey()
{
    if (!m_running || m_ended || !m_backKeyTakenOver)
        return;
    if (auto* edit = qobject_cast<QLineEdit*>(focusWidget()); edit && isAncestorOf(edit) && !edit->isReadOnly())
        edit->backspace();
}

int Screen::runModal(Screen& screen)
{
    return m_window.run(screen);
}

void Screen::layout(int, int) { }

void Screen::paint(QPainter&) { }

void Screen::timerTick(int) { }

void Screen::tap(QPoint) { }

void Screen::swipe(int delta)
{
    if (auto* spinner = qobject_cast<Spinner*>(focusWidget()); spinner && isAncestorOf(spinner))
        spinner->step(delta);
}

void Screen::eraseBackground(QPainter& painter)
{
    const QSize size(workWidth(), workHeight());
    const qreal ratio = devicePixelRatioF();
    if (m_background.deviceIndependentSize() != QSizeF(size) || m_background.devicePixelRatio() != ratio) {
        m_background = QPixmap(size * ratio);
        m_background.setDevicePixelRatio(ratio);
        QPainter background(&m_background);
        Painting::drawGradient(background, size.width(), size.height());
        if (!m_picture.isNull())
            background.drawImage(QRect(QPoint(0, 0), size), m_picture);
    }
    painter.drawPixmap(0, 0, m_background);
}

void Screen::command(int id)
{
    if (const auto action = m_commands.find(id); action != m_commands.end())
        action->second();
    else if (id == Commands::Services || id == Commands::Done)
        endScreen(0);
    else if (id == Commands::Exit)
        exitProgram();
}

int Screen::workWidth() const
{
    return m_window.workArea().width();
}

int Screen::workHeight() const
{
    return m_window.workArea().height();
}

void Screen::startScreenTimer(int id, int milliseconds)
{
    m_timers.insert(id);
    m_environment.timers.start(this, id, milliseconds, [this, id] {
        if (m_running && !m_ended)
            timerTick(id);
    });
}

void Screen::stopScreenTimer(int id)
{
    m_timers.erase(id);
    m_environment.timers.stop(this, id);
}

void Screen::stopAllTimers()
{
    for (const int id : m_timers)
        m_environment.timers.stop(this, id);
    m_timers.clear();
}

void Screen::endScreen(int result)
{
    if (m_ended)
        return;
    m_ended = true;
    m_result = result;
    m_window.screenEnded(*this);
}

void Screen::exitProgram()
{
    m_window.exitAll();
}

Spinner* Screen::addSpinner(const QString& objectName, std::function<void(int delta)> onStep)
{
    auto* spinner = addControl<Spinner>(objectName);
    if (onStep) {
        connect(spinner, &Spinner::deltaRequested, this, [this, onStep = std::move(onStep)](int delta) {
            if (m_running && !m_ended)
                onStep(delta);
        });
    }
    return spinner;
}

void Screen::place(QWidget& control, std::function<QRect(QSize area)> where)
{
    m_placed.emplace_back(&control, std::move(where));
}

void Screen::addLabel(int stringId, const QFont& font, std::function<QPoint(QSize area)> where)
{
    m_labels.push_back({stringId, font, std::move(where)});
}

void Screen::onCommand(std::initializer_list<int> ids, const std::function<void()>& action)
{
    for (const int id : ids)
        m_commands[id] = action;
}

void Screen::keepSetting(const DwordSetting& setting, std::function<std::uint32_t()> value)
{
    m_keptSettings.push_back(
        [this, &setting, value = std::move(value)] { WriteSetting(m_settings, setting, value()); });
}

void Screen::keepSetting(const StringSetting& setting, std::function<std::wstring()> value)
{
    m_keptSettings.push_back(
        [this, &setting, value = std::move(value)] { WriteSetting(m_settings, setting, value()); });
}

void Screen::keepSetting(const DwordSetting& setting, const Spinner& list)
{
    m_keptSettings.push_back([this, &setting, &list] {
        if (list.currentIndex() >= 0)
            WriteSetting(m_settings, setting, static_cast<std::uint32_t>(list.currentIndex()));
    });
}

bool Screen::beginRun(SoftKeyBar& softKeys)
{
    m_softKeys = &softKeys;
    m_running = true;
    m_ended = false;
    m_backKeyTakenOver = false;
    m_result = 0;
    m_picture = QImage();
    m_background = QPixmap();
    if (m_pictureName) {
        if (const auto path = m_environment.paths.hostPath(DevicePaths::joinedName(m_pictureName)))
            m_picture.load(QString::fromStdString(path->string()));
    }
    initialise();
    if (!m_ended)
        arrange();
    return !m_ended;
}

int Screen::finishRun()
{
    stopAllTimers();
    destroyWork();
    // One write for all: a kill while the screen closes leaves all its settings old or all new.
    if (!m_keptSettings.empty()) {
        m_settings.writeTogether([this] {
            for (const auto& write : m_keptSettings)
                write();
        });
    }
    m_running = false;
    m_softKeys = nullptr;
    m_picture = QImage();
    m_background = QPixmap();
    return m_result;
}

void Screen::paintEvent(QPaintEvent* event)
{
    m_dirty = event->rect();
    QPainter painter(this);
    eraseBackground(painter);
    paintTitleAndLabels(painter);
    paint(painter);
    emit painted();
}

void Screen::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    if (m_running && !m_ended)
        arrange();
}

void Screen::arrange()
{
    const QSize area(workWidth(), workHeight());
    if (m_titleBand)
        m_titleBand->layout(area.width());
    for (const auto& [control, where] : m_placed)
        control->setGeometry(where(area));
    layout(area.width(), area.height());
}

void Screen::paintTitleAndLabels(QPainter& painter)
{
    if (m_titleBand && m_dirty.intersects(m_titleBand->rect()))
        m_titleBand->paint(painter);
    if (m_labels.empty())
        return;
    const QSize area(workWidth(), workHeight());
    painter.setPen(Painting::White);
    for (const Label& label : m_labels) {
        const QPoint at = label.where(area);
        Painting::drawTextAt(painter, label.font, at.x(), at.y(), Painting::loadString(label.stringId));
    }
}

void Screen::keyPressEvent(QKeyEvent* event)
{
    // Up and down move between the screen's controls, as the direction pad does in a dialog.
    if (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down) {
        focusNextPrevChild(event->key() == Qt::Key_Down);
        return;
    }
    QWidget::keyPressEvent(event);
}

bool Screen::event(QEvent* event)
{
    const SwipeRecogniser::Reading reading = m_swipe.read(*event);
    if (!reading.mouse)
        return QWidget::event(event);
    if (m_running && !m_ended) {
        if (reading.step != 0)
            swipe(reading.step);
        else if (reading.tap)
            tap(reading.at.toPoint());
    }
    return true;
}
