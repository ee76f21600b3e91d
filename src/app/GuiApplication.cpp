// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/GuiApplication.h"

#include "app/ServicesApp.h"
#include "app/SingleInstance.h"
#include "app/TerminationSignals.h"
#include "app/TourDriver.h"
#include "app/TourMessageBox.h"
#include "session/DeviceSession.h"
#include "ui/DeviceWindow.h"
#include "ui/QtMessageBox.h"
#include "ui/QtMessageSink.h"
#include "ui/QtScreenTimers.h"
#include "ui/ScreenEnvironment.h"
#include "ui/SoftKeyBar.h"
#include "ui/WindowFit.h"

#include <QApplication>
#include <QScreen>
#include <QTemporaryDir>
#include <QTimer>

#include <clocale>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <optional>

namespace {

constexpr qreal DesktopScale = 2;

// The scale that fills the screen the window will open on, asked of a short-lived connection to the
// display: Qt fixes its scale factor before the application object exists.
qreal screenFillingScale(int& argc, char** argv, const StartOptions& options)
{
    const QGuiApplication probe(argc, argv);
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (!screen)
        return DesktopScale;
    return FitScale(
        screen->availableGeometry().size(), QSize(options.width, options.height), SoftKeyBar::BarHeight, DesktopScale);
}

// True under a phone's shell (Phosh, Plasma Mobile), which say so in the environment. Only there is the
// display asked for its size before start: the extra connection costs a desktop start about 5 ms.
bool onPhoneShell()
{
    return qEnvironmentVariable("XDG_CURRENT_DESKTOP").contains(QLatin1String("Phosh"), Qt::CaseInsensitive)
        || qEnvironmentVariableIsSet("QT_QUICK_CONTROLS_MOBILE");
}

// Qt scales the whole window, so text and icons stay sharp at any scale. --scale and QT_SCALE_FACTOR
// win over the screen's size.
void chooseScale(int& argc, char** argv, const StartOptions& options)
{
    if (options.tourDir)
        qputenv("QT_SCALE_FACTOR", "1");
    else if (options.scale > 0)
        qputenv("QT_SCALE_FACTOR", QByteArray::number(options.scale));
    else if (qEnvironmentVariableIsEmpty("QT_SCALE_FACTOR"))
        qputenv("QT_SCALE_FACTOR",
            QByteArray::number(onPhoneShell() ? screenFillingScale(argc, argv, options) : DesktopScale));
}

// Qt's messages while it connects to the display. Qt aborts the process when no display can be reached, which
// means the window cannot be created: the program then ends with 1 and says so, rather than crashing.
void windowlessStartHandler(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    std::cerr << qPrintable(qFormatLogMessage(type, context, message)) << '\n';
    if (type != QtFatalMsg)
        return;
    std::cerr << "wanderkit: there is no display to open the window on\n";
    std::_Exit(1);
}

// Says why the program cannot start: on standard error, and in a box when someone can see it.
int fail(MessageBox& boxes, const std::string& message)
{
    std::cerr << "wanderkit: " << message << '\n';
    if (QGuiApplication::platformName() != QLatin1String("offscreen"))
        boxes.show(nullptr, QString::fromStdString(message), QStringLiteral("Wanderkit"));
    return 1;
}

} // namespace

GuiApplication::GuiApplication(StartOptions options)
    : m_options(std::move(options))
{ }

int GuiApplication::run(int& argc, char** argv)
{
    qInstallMessageHandler(windowlessStartHandler);
    chooseScale(argc, argv, m_options);
    QApplication app(argc, argv);
    qInstallMessageHandler(nullptr);
    // Wayland shells match the window to the installed desktop entry (and its icon) by this id.
    QGuiApplication::setDesktopFileName(QStringLiteral("io.github.wanderkit.Wanderkit"));
    // Numbers in the data files and in printed results always use a decimal point.
    std::setlocale(LC_NUMERIC, "C");

    // A shutdown, a logout or Ctrl+C ends the program as "Exit" does: every open screen saves first.
    TerminationSignals termination;
    SingleInstance instance;
    if (!m_options.tourDir && !instance.claim())
        return 0;

    // A tour renders a fresh device unless a state folder is named, and never touches the user's.
    std::optional<QTemporaryDir> tourState;
    DeviceOptions device = m_options.device;
    if (m_options.tourDir && !device.stateDir)
        device.stateDir = tourState.emplace().path().toStdString();

    QtMessageBox shownBoxes;
    TourMessageBox tourBoxes;
    MessageBox& boxes = m_options.tourDir ? static_cast<MessageBox&>(tourBoxes) : shownBoxes;
    QtMessageSink messages(boxes);
    std::string error;
    const auto session = DeviceSession::open(device, messages, error);
    if (!session)
        return fail(boxes, error);

    DeviceWindow window(QSize(m_options.width, m_options.height));
    messages.setParentWidget(&window);
    QtScreenTimers timers;
    ScreenEnvironment environment {
        session->clock(), session->paths(), session->settings(), session->objects(), messages, boxes, timers};
    ServicesApp launcher(environment, window);

    QObject::connect(&instance, &SingleInstance::raiseRequested, &window, [&window] {
        window.showNormal();
        window.raise();
        window.activateWindow();
    });
    if (m_options.exitAfterFirstPaint) {
        QObject::connect(&launcher, &Screen::painted, &window,
            [&window] { QTimer::singleShot(0, &window, [&window] { window.exitAll(); }); });
    }
    std::unique_ptr<TourDriver> tour;
    if (m_options.tourDir)
        tour = std::make_unique<TourDriver>(window, launcher, QString::fromStdString(m_options.tourDir->string()));

    QObject::connect(&termination, &TerminationSignals::requested, &window, &QWidget::close);
    window.show();
    window.run(launcher);

    if (tour) {
        for (const QString& file : tour->written())
            std::cout << file.toStdString() << '\n';
        return tour->failed() ? 1 : 0;
    }
    return 0;
}
