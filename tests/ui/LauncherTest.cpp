// SPDX-License-Identifier: GPL-3.0-or-later
#include "ScreenTestBench.h"
#include "app/ServicesApp.h"
#include "settings/RegistrySettings.h"
#include "store/CityCatalogue.h"
#include "store/CurrencyStore.h"
#include "ui/Commands.h"
#include "ui/SoftKeyBar.h"

#include <QTest>

class LauncherTest : public QObject
{
    Q_OBJECT

private:
    // Runs the launcher, calls `drive` once it is shown, then leaves it with "Exit".
    static void withLauncher(ScreenTestBench& bench, ServicesApp& launcher, const std::function<void()>& drive)
    {
        bench.run(launcher, [&] {
            drive();
            bench.window.topSoftKeys()->chooseItem(Commands::Exit);
        });
    }

    static void press(ScreenTestBench& bench, Qt::Key key) { QTest::keyClick(bench.window.focusWidget(), key); }

private slots:
    void selectionWrapsBothWays()
    {
        ScreenTestBench bench;
        ServicesApp launcher(bench.environment, bench.window);
        withLauncher(bench, launcher, [&] {
            QCOMPARE(launcher.selection(), 0);
            for (int i = 1; i <= 7; ++i)
                press(bench, Qt::Key_Right);
            QCOMPARE(launcher.selection(), 7);
            press(bench, Qt::Key_Right);
            QCOMPARE(launcher.selection(), 0);
            press(bench, Qt::Key_Left);
            QCOMPARE(launcher.selection(), 7);
        });
    }

    void todoListOpensNothingAndSaysNothing()
    {
        ScreenTestBench bench;
        ServicesApp launcher(bench.environment, bench.window);
        withLauncher(bench, launcher, [&] {
            press(bench, Qt::Key_Left);
            QCOMPARE(launcher.selection(), 7);
            press(bench, Qt::Key_Return);
            QCOMPARE(bench.window.topScreen(), &launcher);
            QVERIFY(bench.boxes.empty());
            QVERIFY(!launcher.serviceScreen(7));
        });
    }

    void anArrowStaysLargeUntil250msAfterTheLastPress()
    {
        ScreenTestBench bench;
        ServicesApp launcher(bench.environment, bench.window);
        withLauncher(bench, launcher, [&] {
            QElapsedTimer clock;
            clock.start();
            press(bench, Qt::Key_Right);
            QVERIFY(launcher.rightArrowPressed());
            QTest::qWait(150);
            press(bench, Qt::Key_Right);
            const qint64 secondPress = clock.elapsed();
            QTest::qWait(150);
            if (clock.elapsed() - secondPress < 240)
                QVERIFY(launcher.rightArrowPressed());
            QTRY_VERIFY_WITH_TIMEOUT(!launcher.rightArrowPressed(), 1000);
            QVERIFY(clock.elapsed() - secondPress >= 245);
            // Both arrows can be large at once; the first timer to fire ends both.
            press(bench, Qt::Key_Left);
            press(bench, Qt::Key_Right);
            QVERIFY(launcher.leftArrowPressed() && launcher.rightArrowPressed());
            QTRY_VERIFY_WITH_TIMEOUT(!launcher.leftArrowPressed() && !launcher.rightArrowPressed(), 1000);
        });
    }

    void theHighlightFramesTheSelectedIcon()
    {
        ScreenTestBench bench;
        ServicesApp launcher(bench.environment, bench.window);
        withLauncher(bench, launcher, [&] {
            for (const QSize area : {QSize(240, 268), QSize(268, 240)}) {
                const int cell = area.width() / 4;
                for (int i = 0; i < 8; ++i) {
                    const int x = (i % 4) * area.width() / 4 + (cell - 16) / 2;
                    const int top = i < 4 ? 48 : 78;
                    QCOMPARE(launcher.selection(), i);
                    QCOMPARE(launcher.highlightRect(), QRect(x - 2, top, 20, 20));
                    press(bench, Qt::Key_Right);
                }
                QTest::keyClick(bench.window.focusWidget(), Qt::Key_R, Qt::ControlModifier);
            }
        });
    }

    void theRenderedLauncherHasItsGradientAndRaisedEdge()
    {
        ScreenTestBench bench;
        ServicesApp launcher(bench.environment, bench.window);
        QImage image;
        withLauncher(bench, launcher, [&] { image = bench.render(); });
        QCOMPARE(image.pixelColor(1, 267), QColor(85, 121, 151));
        QCOMPARE(image.pixelColor(1, 0), QColor(114, 150, 180));
        // Service 0: icon at x = 22, highlight from (20, 48) to (40, 68), light outer edge on top.
        QCOMPARE(image.pixelColor(25, 48), QColor(230, 230, 230));
        QCOMPARE(image.pixelColor(39, 60), QColor(64, 64, 64));
    }

    void aKeyReachingTheLauncherItselfShowsE()
    {
        ScreenTestBench bench;
        ServicesApp launcher(bench.environment, bench.window);
        withLauncher(bench, launcher, [&] {
            QTest::keyClick(&launcher, Qt::Key_A);
            QCOMPARE(bench.boxes.size(), std::size_t(1));
            QCOMPARE(bench.boxes[0].text, QStringLiteral("e"));
            QCOMPARE(bench.boxes[0].caption, QString());
        });
    }

    void missingShippedFilesAreReportedAndTheLauncherStillStarts()
    {
        ScreenTestBench bench;
        ServicesApp launcher(bench.environment, bench.window);
        withLauncher(bench, launcher, [&] { QCOMPARE(bench.window.topScreen(), &launcher); });
        std::vector<std::wstring> texts;
        for (const auto& message : bench.messages.messages) {
            texts.push_back(message.text);
            QCOMPARE(message.caption, std::wstring(L"Wanderkit"));
        }
        QCOMPARE(texts, (std::vector<std::wstring> {L"Initial Cities File not found!",
                            L"Initial Weather Favorite Cities File not found!", L"Initial Currencies File not found!"}));
    }

    void theStoresAreFilledOnceAndTheCurrencyFileIsReadAtEveryStart()
    {
        ScreenTestBench bench;
        bench.root.write("cities.lst", "h\n2\nx;Paris;France;2.35;48.85;1;1;88;2;298;3\nx;Lima;Peru;-77;-12;-5;0;0;0;0;0\n");
        bench.root.write("cities.wet", "1\nFrance;Paris;2988507\n");
        bench.root.write("currs.lst", "2\nEUR_Euro_1.1#USD_US Dollar_1#");
        {
            ServicesApp launcher(bench.environment, bench.window);
            withLauncher(bench, launcher, [] {});
        }
        QVERIFY(bench.messages.messages.empty());

        // New files change nothing once the stores are filled, but a missing currency file is still reported.
        bench.root.write("cities.lst", "h\n1\nx;Oslo;Norway;10.75;59.91;1;1;88;2;298;3\n");
        std::filesystem::remove(bench.root.path() / "currs.lst");
        ServicesApp launcher(bench.environment, bench.window);
        withLauncher(bench, launcher, [] {});
        QCOMPARE(bench.messages.messages.size(), std::size_t(1));
        QCOMPARE(bench.messages.messages[0].text, std::wstring(L"Initial Currencies File not found!"));
        CityCatalogue cities(*bench.objects, bench.paths, bench.messages);
        cities.Load();
        QCOMPARE(cities.Count(), 2);
        QCOMPARE(cities.CityName(1), std::wstring(L"Paris"));
        CurrencyStore currencies(*bench.objects);
        currencies.Load();
        QCOMPARE(currencies.RecordCount(), 2);
    }

    void leavingForgetsTheTypedAmounts()
    {
        ScreenTestBench bench;
        RegistrySettings registry(*bench.settings);
        registry.SetString(L"Wanderkit\\currencies", L"curval", L"12.5");
        registry.SetString(L"Wanderkit\\measurs", L"convval", L"3");
        ServicesApp launcher(bench.environment, bench.window);
        withLauncher(bench, launcher, [] {});
        QCOMPARE(registry.GetString(L"Wanderkit\\currencies", L"curval"), std::wstring());
        QCOMPARE(registry.Status(), RegistrySettings::Read);
        QCOMPARE(registry.GetString(L"Wanderkit\\measurs", L"convval"), std::wstring());
        QCOMPARE(registry.Status(), RegistrySettings::Read);
    }

    void theServicesKeyIsGreyOnTheLauncher()
    {
        ScreenTestBench bench;
        ServicesApp launcher(bench.environment, bench.window);
        withLauncher(bench, launcher, [&] {
            QVERIFY(!launcher.softKeys()->isKeyEnabled(Commands::Services));
            press(bench, Qt::Key_F1);
            QCOMPARE(bench.window.topScreen(), &launcher);
        });
        QVERIFY(!launcher.isRunning());
    }
};

QTEST_MAIN(LauncherTest)
#include "LauncherTest.moc"
