// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "session/DeviceSession.h"
#include "ui/DeviceWindow.h"
#include "ui/QtMessageBox.h"
#include "ui/QtMessageSink.h"
#include "ui/QtScreenTimers.h"
#include "ui/ScreenEnvironment.h"

#include <QTemporaryDir>

#include <memory>

// The shipped device root and a fresh state folder, on the system clock, with the environment and the
// device window that a benchmarked screen runs in.
struct DeviceRig
{
    DeviceRig()
        : messages(boxes)
        , device(openDevice(state, messages))
        , environment {device->clock(), device->paths(), device->settings(), device->objects(), messages, boxes, timers}
        , window(QSize(240, 268))
    { }

    QTemporaryDir state;
    QtMessageBox boxes;
    QtMessageSink messages;
    std::unique_ptr<DeviceSession> device;
    QtScreenTimers timers;
    ScreenEnvironment environment;
    DeviceWindow window;

private:
    static std::unique_ptr<DeviceSession> openDevice(const QTemporaryDir& state, MessageSink& messages)
    {
        std::string error;
        auto device = DeviceSession::open({state.path().toStdString(), WANDERKIT_DEVICE_ROOT, {}}, messages, error);
        if (!device)
            qFatal("%s", error.c_str());
        return device;
    }
};
