// SPDX-License-Identifier: GPL-3.0-or-later
#include "ScreenTestBench.h"

#include "ui/Screen.h"

#include <QTest>
#include <QTimer>

#include <memory>

ScreenTestBench::ScreenTestBench(QSize workArea)
    : paths(root.path())
    , settings(SettingsHive::openInMemory())
    , objects(ObjectStore::openInMemory())
    , environment {clock, paths, *settings, *objects, messages}
    , window(workArea)
{
    MessageBox::setInterceptor([this](const MessageBox::Request& request) {
        boxes.push_back(request);
        return boxAnswer;
    });
    window.show();
}

ScreenTestBench::~ScreenTestBench()
{
    MessageBox::setInterceptor({});
}

int ScreenTestBench::run(Screen& screen, const std::function<void()>& drive)
{
    QObject context;
    bool driven = false;
    QObject::connect(&window, &DeviceWindow::screenShown, &context, [&](Screen& shown) {
        if (&shown != &screen || driven)
            return;
        driven = true;
        QTimer::singleShot(0, &context, drive);
    });
    return window.run(screen);
}

void ScreenTestBench::visit(Screen& screen, const std::function<void()>& check)
{
    run(screen, [&] {
        check();
        screen.endScreen();
    });
}

void ScreenTestBench::whenShown(Screen& screen, const std::function<void()>& drive)
{
    auto connection = std::make_shared<QMetaObject::Connection>();
    *connection
        = QObject::connect(&window, &DeviceWindow::screenShown, &screen, [&screen, connection, drive](Screen& shown) {
              if (&shown != &screen)
                  return;
              QObject::disconnect(*connection);
              QTimer::singleShot(0, &screen, drive);
          });
}

void ScreenTestBench::press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(window.focusWidget(), key, modifiers);
}

QString ScreenTestBench::fromWide(std::wstring_view text)
{
    return QString::fromWCharArray(text.data(), static_cast<qsizetype>(text.size()));
}

QImage ScreenTestBench::render()
{
    return window.grab().toImage();
}
