// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/GuiApplication.h"

#include "app/ServicesApp.h"
#include "app/SingleInstance.h"
#include "app/TourDriver.h"
#include "device/DevicePaths.h"
#include "device/StateFolder.h"
#include "device/SystemDeviceClock.h"
#include "settings/SettingsHive.h"
#include "store/ObjectStore.h"
#include "ui/DeviceWindow.h"
#include "ui/MessageBox.h"
#include "ui/QtMessageSink.h"

#include <QApplication>
#include <QTemporaryDir>
#include <QTimer>

#include <clocale>
#include <iostream>
#include <memory>

namespace {

// Qt scales the whole window, so text and icons stay sharp at any scale.
void chooseScale(const StartOptions& options)
{
    if (options.tourDir)
        qputenv("QT_SCALE_FACTOR", "1");
    else if (qEnvironmentVariableIsEmpty("QT_SCALE_FACTOR"))
        qputenv("QT_SCALE_FACTOR", QByteArray::number(options.scale));
}

// Says why the program cannot start: on standard error, and in a box when someone can see it.
int fail(const std::string& message)
{
    std::cerr << "wanderkit: " << message << '\n';
    if (QGuiApplication::platformName() != QLatin1String("offscreen"))
        MessageBox::show(nullptr, QString::fromStdString(message), QStringLiteral("Wanderkit"));
    return 1;
}

} // namespace

GuiApplication::GuiApplication(StartOptions options)
    : m_options(std::move(options))
{ }

int GuiApplication::run(int& argc, char** argv)
{
    chooseScale(m_options);
    QApplication app(argc, argv);
    // Numbers in the data files and in printed results always use a decimal point.
    std::setlocale(LC_NUMERIC, "C");

    SingleInstance instance;
    if (!m_options.tourDir && !instance.claim())
        return 0;

    // A tour renders a fresh device unless a state folder is named, and never touches the user's.
    QTemporaryDir tourState;
    std::optional<std::filesystem::path> chosen = m_options.stateDir;
    if (m_options.tourDir && !chosen)
        chosen = tourState.path().toStdString();
    const auto stateFolder = StateFolder::locate(chosen);
    std::string error;
    if (!StateFolder::prepare(stateFolder, error))
        return fail(error);

    QtMessageSink messages;
    const std::unique_ptr<SystemDeviceClock> clock
        = m_options.now ? std::make_unique<SystemDeviceClock>(*m_options.now) : std::make_unique<SystemDeviceClock>();
    const DevicePaths paths(StateFolder::locateDeviceRoot(m_options.deviceRoot));
    const auto settings = SettingsHive::open(stateFolder / "registry.db", messages);
    const auto objects = settings ? ObjectStore::open(stateFolder / "objectstore.db", messages) : nullptr;
    if (!objects)
        return fail(StateFolder::openFailure(stateFolder / (settings ? "objectstore.db" : "registry.db")));

    DeviceWindow window(QSize(m_options.width, m_options.height));
    messages.setParentWidget(&window);
    ScreenEnvironment environment {*clock, paths, *settings, *objects, messages};
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

    window.show();
    window.run(launcher);

    if (tour) {
        for (const QString& file : tour->written())
            std::cout << file.toStdString() << '\n';
        return tour->failed() ? 1 : 0;
    }
    return 0;
}
