// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ScreenRig.h"

#include <QApplication>
#include <QEventLoop>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <sys/resource.h>

// The process's CPU use while one screen stays open with its real timers: run it for N seconds
// (argv[1], default 60) and report user + system time as a share of one core. Target: at most 1 %.
namespace IdleCpu {

inline double cpuSeconds()
{
    rusage usage {};
    getrusage(RUSAGE_SELF, &usage);
    const auto seconds = [](const timeval& t) { return static_cast<double>(t.tv_sec) + t.tv_usec / 1e6; };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

// Runs the bench for the screen `ScreenType`, called `name` in the report; returns the exit code.
template<typename ScreenType>
int run(int argc, char** argv, const char* name)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    const int seconds = argc > 1 ? std::max(1, std::atoi(argv[1])) : 60;
    ScreenRig<ScreenType> rig;
    double used = 0;
    rig.run([&] {
        const double before = cpuSeconds();
        QEventLoop wait;
        QTimer::singleShot(seconds * 1000, &wait, &QEventLoop::quit);
        wait.exec();
        used = cpuSeconds() - before;
    });
    std::printf("%s open for %d s: %.3f s of CPU, %.3f %% of one core (target at most 1 %%)\n", name, seconds, used,
        100.0 * used / seconds);
    return used / seconds > 0.01 ? 1 : 0;
}

} // namespace IdleCpu
