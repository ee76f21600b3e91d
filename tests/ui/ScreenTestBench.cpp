// SPDX-License-Identifier: GPL-3.0-or-later
#include "ScreenTestBench.h"

#include "ui/Screen.h"

#include <QTimer>

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

QImage ScreenTestBench::render()
{
    return window.grab().toImage();
}
