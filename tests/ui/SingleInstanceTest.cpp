// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/SingleInstance.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <cstring>
#include <fcntl.h>
#include <memory>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

// A child process of this test program, started with ClaimChild: waits until its standard input ends,
// claims, writes "1" (it runs) or "0" (it left) to standard output, and keeps its claim until its
// descriptor 3 ends.
constexpr const char* ClaimChild = "--claim-child";
constexpr int HoldFd = 3;

int claimChild(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    char byte = 0;
    while (::read(STDIN_FILENO, &byte, 1) > 0) { }
    SingleInstance instance;
    if (::write(STDOUT_FILENO, instance.claim() ? "1" : "0", 1) != 1)
        return 1;
    while (::read(HoldFd, &byte, 1) > 0) { }
    return 0;
}

// Starts `count` children, releases them at the same instant by closing their shared standard input and
// counts those that run; -1 when one did not answer within 20 seconds. The children leave before it returns.
int runningOfSimultaneousStarts(int count)
{
    int start[2], hold[2], results[2];
    if (::pipe2(start, O_CLOEXEC) != 0 || ::pipe2(hold, O_CLOEXEC) != 0 || ::pipe2(results, O_CLOEXEC) != 0)
        return -1;
    std::vector<pid_t> pids;
    for (int i = 0; i < count; ++i) {
        pids.push_back(::fork());
        if (pids.back() == 0) {
            ::dup2(start[0], STDIN_FILENO);
            ::dup2(results[1], STDOUT_FILENO);
            ::dup2(hold[0], HoldFd);
            ::execl("/proc/self/exe", "test_single_instance", ClaimChild, nullptr);
            ::_exit(127);
        }
    }
    for (const int end : {start[0], hold[0], results[1], start[1]})
        ::close(end);
    int running = 0;
    for (int answered = 0; answered < count && running >= 0; ++answered) {
        pollfd ready {results[0], POLLIN, 0};
        char answer = 0;
        const bool read = ::poll(&ready, 1, 20'000) == 1 && ::read(results[0], &answer, 1) == 1;
        running = read ? running + (answer == '1') : -1;
    }
    ::close(hold[1]);
    ::close(results[0]);
    for (const pid_t pid : pids)
        ::waitpid(pid, nullptr, 0);
    return running;
}

} // namespace

class SingleInstanceTest : public QObject
{
    Q_OBJECT

private slots:
    void laterStartsRaiseTheFirstAndLeaveItsSocketAlone()
    {
        QTemporaryDir runtime;
        qputenv("XDG_RUNTIME_DIR", runtime.path().toLocal8Bit());
        QCOMPARE(SingleInstance::socketPath(),
            runtime.path() + QStringLiteral("/{Wanderkit-91F5D741-4E63-4642-A05A-E4AC57871578}"));
        auto first = std::make_unique<SingleInstance>();
        QVERIFY(first->claim());
        QSignalSpy raised(first.get(), &SingleInstance::raiseRequested);
        for (int start = 1; start <= 3; ++start) {
            SingleInstance later;
            QVERIFY(!later.claim());
            QTRY_COMPARE(raised.count(), start); // the first is still reachable after each one left
        }
        first.reset();
        QVERIFY(!QFile::exists(SingleInstance::socketPath()));
        // A socket file left behind by a crash, where nobody listens, is taken over.
        QFile stale(SingleInstance::socketPath());
        QVERIFY(stale.open(QIODevice::WriteOnly));
        stale.close();
        SingleInstance next;
        QVERIFY(next.claim());
    }

    void ofManyStartsAtTheSameMomentExactlyOneRuns()
    {
        QTemporaryDir runtime;
        qputenv("XDG_RUNTIME_DIR", runtime.path().toLocal8Bit());
        // Thirty rounds of eight starts released at the same instant; each winner leaves before the next.
        for (int round = 0; round < 30; ++round)
            QCOMPARE(runningOfSimultaneousStarts(8), 1);
    }
};

int main(int argc, char** argv)
{
    if (argc == 2 && std::strcmp(argv[1], ClaimChild) == 0)
        return claimChild(argc, argv);
    QCoreApplication app(argc, argv);
    SingleInstanceTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "SingleInstanceTest.moc"
