// SPDX-License-Identifier: GPL-3.0-or-later
// The process's CPU use while the World Clocks screen stays open: run it for N seconds (default 60)
// with its real one-second timer and report user + system time as a share of one core.
// Target: at most 1 %. Usage: bench_worldclock_idle [SECONDS]
#include "WorldClockRig.h"

#include <QApplication>
#include <QEventLoop>

#include <cstdio>
#include <cstdlib>

#include <sys/resource.h>

namespace {

double cpuSeconds()
{
    rusage usage {};
    getrusage(RUSAGE_SELF, &usage);
    const auto seconds = [](const timeval& t) { return static_cast<double>(t.tv_sec) + t.tv_usec / 1e6; };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    const int seconds = argc > 1 ? std::max(1, std::atoi(argv[1])) : 60;
    WorldClockRig rig;
    double used = 0;
    rig.run([&] {
        const double before = cpuSeconds();
        QEventLoop wait;
        QTimer::singleShot(seconds * 1000, &wait, &QEventLoop::quit);
        wait.exec();
        used = cpuSeconds() - before;
    });
    std::printf("World Clocks open for %d s: %.3f s of CPU, %.3f %% of one core (target at most 1 %%)\n", seconds,
        used, 100.0 * used / seconds);
    return used / seconds > 0.01 ? 1 : 0;
}
