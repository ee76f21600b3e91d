// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/SingleInstance.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

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

QTEST_MAIN(SingleInstanceTest)
#include "SingleInstanceTest.moc"
