// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/SingleInstance.h"

#include <QSignalSpy>
#include <QSocketNotifier>
#include <QTemporaryDir>
#include <QTest>

#include <cstring>
#include <fcntl.h>
#include <memory>
#include <poll.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

// A child process of this test program, started with ClaimChild: waits until its standard input ends,
// claims, writes "1" (it runs) or "0" (it left) to standard output, and keeps its claim, answering
// later starts, until its descriptor 3 ends.
constexpr const char* ClaimChild = "--claim-child";
constexpr int HoldFd = 3;

int claimChild(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    char byte = 0;
    while (::read(STDIN_FILENO, &byte, 1) > 0) { }
    SingleInstance instance;
    const bool runs = instance.claim();
    if (::write(STDOUT_FILENO, runs ? "1" : "0", 1) != 1)
        return 1;
    // The event loop answers later starts while the claim is held.
    QSocketNotifier hold(HoldFd, QSocketNotifier::Read);
    QObject::connect(&hold, &QSocketNotifier::activated, &app, [&app] {
        char ignored = 0;
        if (::read(HoldFd, &ignored, 1) <= 0)
            app.quit();
    });
    return app.exec();
}

// Children started at once and released together by closing their shared standard input.
class ClaimingChildren
{
public:
    explicit ClaimingChildren(int count)
    {
        if (::pipe2(m_start, O_CLOEXEC) != 0 || ::pipe2(m_hold, O_CLOEXEC) != 0 || ::pipe2(m_results, O_CLOEXEC) != 0)
            return;
        for (int i = 0; i < count; ++i) {
            const pid_t pid = ::fork();
            if (pid == 0) {
                ::dup2(m_start[0], STDIN_FILENO);
                ::dup2(m_results[1], STDOUT_FILENO);
                ::dup2(m_hold[0], HoldFd);
                ::execl("/proc/self/exe", "test_single_instance", ClaimChild, nullptr);
                ::_exit(127);
            }
            m_pids.push_back(pid);
        }
        ::close(m_start[0]);
        ::close(m_hold[0]);
        ::close(m_results[1]);
    }

    // Releases every child and counts those that run; -1 when one did not answer within 20 seconds.
    int release()
    {
        ::close(m_start[1]);
        int running = 0;
        for (std::size_t answered = 0; answered < m_pids.size(); ++answered) {
            pollfd ready {m_results[0], POLLIN, 0};
            char answer = 0;
            if (::poll(&ready, 1, 20'000) != 1 || ::read(m_results[0], &answer, 1) != 1)
                return -1;
            running += answer == '1';
        }
        return running;
    }

    ~ClaimingChildren()
    {
        ::close(m_hold[1]); // the children leave
        ::close(m_results[0]);
        for (const pid_t pid : m_pids)
            ::waitpid(pid, nullptr, 0);
    }

private:
    int m_start[2] = {-1, -1};
    int m_hold[2] = {-1, -1};
    int m_results[2] = {-1, -1};
    std::vector<pid_t> m_pids;
};

} // namespace

class SingleInstanceTest : public QObject
{
    Q_OBJECT

private slots:
    void aSecondStartRaisesTheFirst()
    {
        QTemporaryDir runtime;
        qputenv("XDG_RUNTIME_DIR", runtime.path().toLocal8Bit());
        QCOMPARE(SingleInstance::socketPath(),
            runtime.path() + QStringLiteral("/{Wanderkit-91F5D741-4E63-4642-A05A-E4AC57871578}"));

        SingleInstance first;
        QVERIFY(first.claim());
        QSignalSpy raised(&first, &SingleInstance::raiseRequested);
        SingleInstance second;
        QVERIFY(!second.claim());
        QTRY_COMPARE(raised.count(), 1);
    }

    void aStartThatLostTheClaimLeavesTheSocketAlone()
    {
        QTemporaryDir runtime;
        qputenv("XDG_RUNTIME_DIR", runtime.path().toLocal8Bit());
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
        SingleInstance next;
        QVERIFY(next.claim());
    }

    void ofManyStartsAtTheSameMomentExactlyOneRuns()
    {
        QTemporaryDir runtime;
        qputenv("XDG_RUNTIME_DIR", runtime.path().toLocal8Bit());
        // Thirty rounds of eight starts released at the same instant; each winner leaves before the next.
        for (int round = 0; round < 30; ++round) {
            ClaimingChildren children(8);
            QCOMPARE(children.release(), 1);
        }
    }

    void aStaleSocketIsTakenOver()
    {
        QTemporaryDir runtime;
        qputenv("XDG_RUNTIME_DIR", runtime.path().toLocal8Bit());
        QFile stale(SingleInstance::socketPath());
        QVERIFY(stale.open(QIODevice::WriteOnly)); // left behind by a crash; nobody listens
        stale.close();
        SingleInstance instance;
        QVERIFY(instance.claim());
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
