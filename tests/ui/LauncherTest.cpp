// SPDX-License-Identifier: GPL-3.0-or-later
#include "PaintLog.h"
#include "ScreenTestBench.h"
#include "app/ServicesApp.h"
#include "screens/clothing/ClothingScreen.h"

#include <array>
#include <tuple>

namespace {

// Runs a launcher on `bench`, calls `drive` with it once it is shown, then leaves it with "Exit".
void withLauncher(ScreenTestBench& bench, const std::function<void(ServicesApp&)>& drive)
{
    ServicesApp launcher(bench.environment, bench.window);
    bench.run(launcher, [&] {
        drive(launcher);
        bench.window.topSoftKeys()->chooseItem(Commands::Exit);
    });
}

} // namespace

class LauncherTest : public QObject
{
    Q_OBJECT

private slots:
    void theKeysOpenServicesAndComeBackToTheSelectionAndAnArrowStaysLargeFor250ms()
    {
        ScreenTestBench bench;
        withLauncher(bench, [&](ServicesApp& launcher) {
            bench.press(Qt::Key_Left);
            QCOMPARE(launcher.selection(), 7); // from the first back to "Todo List"
            bench.press(Qt::Key_Return); // "Todo List" opens nothing
            QCOMPARE(bench.window.topScreen(), &launcher);
            // Any other key reaching the launcher itself shows "e".
            QTest::keyClick(&launcher, Qt::Key_A);
            QCOMPARE(bench.boxes.shown.size(), std::size_t(1));
            QCOMPARE(bench.boxes.shown[0].text, QStringLiteral("e"));
            QCOMPARE(bench.boxes.shown[0].caption, QString());
            // "Services" on "Clothing sizes" (5) comes back to it; the launcher's own is grey.
            Screen* clothing = launcher.serviceScreen(5);
            QVERIFY(qobject_cast<ClothingScreen*>(clothing));
            for (int i = 0; i < 6; ++i)
                bench.press(Qt::Key_Right);
            bool servicesEnabled = false;
            bench.whenNextShown(launcher, [&](Screen& shown) {
                servicesEnabled = &shown == clothing && clothing->softKeys()->isKeyEnabled(Commands::Services);
                bench.press(Qt::Key_F1);
                shown.endScreen(); // in case the key did nothing
            });
            bench.press(Qt::Key_Return); // returns once the screen has ended
            QVERIFY(servicesEnabled);
            QCOMPARE(launcher.selection(), 5);
            QVERIFY(!launcher.softKeys()->isKeyEnabled(Commands::Services));
            // An arrow stays large until 250 ms after its last press; the first of two timers to fire ends
            // both. Each step: a key pressed (or none), the milliseconds passed, then the left and right arrows.
            const std::tuple<int, int, bool, bool> steps[] = {{0, 250, false, false}, {Qt::Key_Right, 150, false, true},
                {Qt::Key_Right, 249, false, true}, {0, 1, false, false}, {Qt::Key_Left, 100, true, false},
                {Qt::Key_Right, 0, true, true}, {0, 150, false, false}};
            for (const auto& [key, milliseconds, left, right] : steps) {
                if (key != 0)
                    bench.press(static_cast<Qt::Key>(key));
                bench.advance(milliseconds);
                QCOMPARE(launcher.leftArrowPressed(), left);
                QCOMPARE(launcher.rightArrowPressed(), right);
            }
        });
    }

    void aJumpSelectsLikeAStepWithoutArrows_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("selection");
        QTest::newRow("a letter") << int(Qt::Key_D) << 6; // "Dialing codes"
        QTest::newRow("a page key") << int(Qt::Key_PageDown) << 7; // ten services on, at most to the last
    }

    void aJumpSelectsLikeAStepWithoutArrows()
    {
        QFETCH(int, key);
        QFETCH(int, selection);
        ScreenTestBench bench;
        withLauncher(bench, [&](ServicesApp& launcher) {
            QVERIFY(QTest::qWaitForWindowExposed(&bench.window));
            QCoreApplication::processEvents();
            PaintLog painted(launcher);
            QCoreApplication::processEvents();
            QVERIFY(painted.region.isEmpty()); // nothing left to paint before the key
            bench.press(static_cast<Qt::Key>(key));
            QCOMPARE(launcher.selection(), selection);
            QVERIFY(!launcher.leftArrowPressed() && !launcher.rightArrowPressed());
            // The highlight and the label band are repainted at once, as after a step.
            QTRY_VERIFY_WITH_TIMEOUT(painted.region.contains(QRect(0, 228, 240, 40)), 1000);
            QVERIFY(painted.region.contains(launcher.highlightRect()));
            // A letter looks from the next service on, wrapping: the "C"s are "Currency Converter" (3) and
            // "Clothing sizes" (5); no service starts with "Q".
            for (const auto& [key, selection] : std::initializer_list<std::pair<Qt::Key, int>> {
                     {Qt::Key_C, 3}, {Qt::Key_C, 5}, {Qt::Key_C, 3}, {Qt::Key_Q, 3}}) {
                bench.press(key);
                QCOMPARE(launcher.selection(), selection);
            }
        });
    }

    void theHighlightFramesTheSelectedIcon()
    {
        // Icons sit centred in four columns of W / 4: at 240 wide x = 22, 82, 142, 202; at 268 wide the
        // columns are 67 wide, so x = 25, 92, 159, 226. The frame is 2 pixels outside, at y 48 or 78. The
        // eighth step wraps back to the first icon.
        using Case = std::pair<QSize, std::array<int, 4>>;
        const Case cases[] = {{{240, 268}, {22, 82, 142, 202}}, {{268, 240}, {25, 92, 159, 226}}};
        ScreenTestBench bench;
        withLauncher(bench, [&](ServicesApp& launcher) {
            for (const auto& [area, columns] : cases) {
                QCOMPARE(bench.window.workArea(), area);
                for (int i = 0; i < 8; ++i) {
                    const int x = columns[static_cast<std::size_t>(i % 4)];
                    const int top = i < 4 ? 48 : 78;
                    QCOMPARE(launcher.selection(), i);
                    QCOMPARE(launcher.highlightRect(), QRect(x - 2, top, 20, 20));
                    // The raised edge is painted there: light on its top side, dark on its right side.
                    const QImage image = bench.render();
                    QCOMPARE(image.pixelColor(x + 8, top), QColor(230, 230, 230));
                    QCOMPARE(image.pixelColor(x + 17, top + 10), QColor(64, 64, 64));
                    bench.press(Qt::Key_Right);
                }
                bench.press(Qt::Key_R, Qt::ControlModifier);
            }
        });
    }

    void theStoresAreLoadedInOrderOnceTheCurrencyFileAtEveryStartAndAmountsAreForgotten()
    {
        ScreenTestBench bench;
        using Told = std::vector<RecordingMessageSink::Message>;
        const auto start = [&bench] { // the messages of one start
            bench.messages.messages.clear();
            withLauncher(bench, [](ServicesApp&) {});
            return bench.messages.messages;
        };
        const RecordingMessageSink::Message noCurrencies {L"Initial Currencies File not found!", L"Wanderkit"};
        bench.store(Settings::CurrencyAmount, L"12.5");
        bench.store(Settings::MeasureValue, L"3");
        // Missing shipped files never stop the start.
        QCOMPARE(start(),
            (Told {{L"Initial Cities File not found!", L"Wanderkit"},
                {L"Initial Weather Favorite Cities File not found!", L"Wanderkit"}, noCurrencies}));
        // Leaving forgets the typed amounts.
        RegistrySettings registry(bench.settings);
        for (const StringSetting* amount : {&Settings::CurrencyAmount, &Settings::MeasureValue}) {
            QCOMPARE(registry.GetString(amount->subkey, amount->name), std::wstring());
            QCOMPARE(registry.Status(), RegistrySettings::Read);
        }
        bench.root.write(
            "cities.lst", "h\n2\nx;Paris;France;2.35;48.85;1;1;88;2;298;3\nx;Lima;Peru;-77;-12;-5;0;0;0;0;0\n");
        bench.root.write("cities.wet", "1\nFrance;Paris;2988507\n");
        bench.root.write("currs.lst", "2\nEUR_Euro_1.1#USD_US Dollar_1#");
        QVERIFY(start().empty());
        // A filled store is not loaded again, but a missing currency file is still reported.
        std::filesystem::remove(bench.root.path() / "currs.lst");
        QCOMPARE(start(), Told {noCurrencies});
    }
};

QTEST_MAIN(LauncherTest)
#include "LauncherTest.moc"
