// SPDX-License-Identifier: GPL-3.0-or-later
#include "ScreenTestBench.h"
#include "ui/Commands.h"
#include "ui/MenuBars.h"
#include "ui/NumericEdit.h"
#include "ui/Screen.h"
#include "ui/SoftKeyBar.h"

#include <QMenu>
#include <QSignalSpy>
#include <QTest>

namespace {

// A screen that records which hooks ran, for checking the framework's order and counts.
class ProbeScreen final : public Screen
{
public:
    ProbeScreen(ScreenEnvironment& environment, DeviceWindow& window, MenuBarId menuBar, const QString& name)
        : Screen(environment, window, menuBar, name)
    { }

    int initialised = 0;
    int destroyed = 0;
    int ticks = 0;
    QList<QSize> layouts;
    QList<int> commands;
    std::function<void()> onInitialise = [] {};
    std::function<void()> onDestroy = [] {};
    using Screen::setBackgroundPicture;
    using Screen::startScreenTimer;
    using Screen::takeOverBackKey;

protected:
    void initialise() override { ++initialised, onInitialise(); }
    void layout(int width, int height) override { layouts.append(QSize(width, height)); }
    void destroyWork() override { ++destroyed, onDestroy(); }
    void timerTick(int) override { ++ticks; }
    void command(int id) override { commands.append(id), Screen::command(id); }
};

} // namespace

class ScreenFrameworkTest : public QObject
{
    Q_OBJECT

private slots:
    void servicesEndsTheScreenAndRunsItsDestroyWorkOnceAndItsTimersStop()
    {
        ScreenTestBench bench;
        ProbeScreen screen(bench.environment, bench.window, MenuBarId::WorldClocks, QStringLiteral("probe"));
        for (int visit = 1; visit <= 3; ++visit) {
            const int result = bench.run(screen, [&] { bench.window.topSoftKeys()->pressLeft(); });
            QCOMPARE(result, 0);
            QCOMPARE(screen.initialised, visit);
            QCOMPARE(screen.destroyed, visit);
            QVERIFY(!screen.isRunning());
        }
        QCOMPARE(screen.layouts.first(), QSize(240, 268));
        // Its timers tick only while it runs.
        bench.visit(screen, [&] {
            screen.startScreenTimer(1, 10);
            bench.advance(25);
            QCOMPARE(screen.ticks, 2);
        });
        QVERIFY(!bench.timers.isRunning(&screen, 1));
        bench.advance(50);
        QCOMPARE(screen.ticks, 2);
    }

    void exitFromANestedDialogUnwindsEveryRunInnermostFirst()
    {
        ScreenTestBench bench;
        ProbeScreen outer(bench.environment, bench.window, MenuBarId::Launcher, QStringLiteral("outer"));
        ProbeScreen middle(bench.environment, bench.window, MenuBarId::WorldClocks, QStringLiteral("middle"));
        ProbeScreen inner(bench.environment, bench.window, MenuBarId::Converter, QStringLiteral("inner"));
        QStringList order;
        for (ProbeScreen* screen : {&outer, &middle, &inner})
            screen->onDestroy = [&order, screen] { order << screen->screenName(); };
        bool afterNested = false;
        bench.run(outer, [&] {
            bench.run(middle, [&] {
                bench.run(inner, [&] { bench.window.topSoftKeys()->chooseItem(Commands::Exit); });
                afterNested = true;
                // Nothing opens while the program is ending.
                QVERIFY(bench.window.isExiting());
                QCOMPARE(bench.window.run(inner), 0);
                QCOMPARE(inner.initialised, 1);
            });
        });
        QVERIFY(afterNested);
        QCOMPARE(inner.commands, QList<int> {Commands::Exit});
        QCOMPARE(order, (QStringList {QStringLiteral("inner"), QStringLiteral("middle"), QStringLiteral("outer")}));
        QVERIFY(!bench.window.isExiting());
    }

    void softKeysAndDeviceKeysGreyAndCheck()
    {
        ScreenTestBench bench;
        ProbeScreen screen(bench.environment, bench.window, MenuBarId::WorldClocks, QStringLiteral("probe"));
        bench.run(screen, [&] {
            SoftKeyBar* keys = screen.softKeys();
            QVERIFY(!keys->isItemChecked(Commands::TwelveHourClocks));
            keys->setItemChecked(Commands::TwelveHourClocks, true);
            QVERIFY(keys->isItemChecked(Commands::TwelveHourClocks));
            keys->setItemEnabled(Commands::TwelveHourClocks, false);
            keys->chooseItem(Commands::TwelveHourClocks); // greyed: nothing happens
            keys->setKeyEnabled(Commands::Services, false);
            QTest::keyClick(&screen, Qt::Key_F1); // disabled: nothing happens
            QTest::keyClick(&screen, Qt::Key_Return);
            QVERIFY(screen.isRunning());
            keys->setKeyEnabled(Commands::Services, true);
            QTest::keyClick(&screen, Qt::Key_F1);
        });
        QCOMPARE(screen.commands, (QList<int> {Commands::Ok, Commands::Services}));

        // F2 presses a right key that is a plain key ("Add"), not a menu.
        ProbeScreen dialog(bench.environment, bench.window, MenuBarId::Favourites, QStringLiteral("dialog"));
        bench.run(dialog, [&] {
            QTest::keyClick(&dialog, Qt::Key_F2);
            QTest::keyClick(&dialog, Qt::Key_F1); // "Done"
        });
        QCOMPARE(dialog.commands, (QList<int> {Commands::Add, Commands::Done}));
    }

    void everyPopupEndsWithExitAndEveryItemSendsACommand()
    {
        QVERIFY(!MenuBars::find(static_cast<MenuBarId>(100)));
        for (const int id : {101, 106, 107, 108, 109, 110, 111, 112}) { // the bars' resource ids
            const MenuBarLayout* layout = MenuBars::find(static_cast<MenuBarId>(id));
            QVERIFY2(layout, qPrintable(QString::number(id)));
            SoftKeyBar bar(*layout);
            QSignalSpy sent(&bar, &SoftKeyBar::commandTriggered);
            QStringList texts; // a separator's is empty
            for (QAction* item : bar.popup() ? bar.popup()->actions() : QList<QAction*>())
                texts << item->text(), item->trigger();
            QCOMPARE(sent.size(), texts.size() - texts.count(QString()));
            // "Exit" last, after a separator when there is more (the launcher's popup holds only it).
            QVERIFY(texts.isEmpty() || (texts.last() == QStringLiteral("Exit") && sent.last().at(0) == Commands::Exit));
            QVERIFY(texts.size() < 2 || texts.at(texts.size() - 2).isEmpty());
            if (id == 108) // the map's popup, item by item
                QCOMPARE(texts,
                    (QStringList {QStringLiteral("Show cities on Map"), QStringLiteral("Change City"),
                        QStringLiteral("Weather Forecast"), QString(), QStringLiteral("Exit")}));
        }
    }

    void rotationLaysEveryRunningScreenOutAgain()
    {
        ScreenTestBench bench;
        ProbeScreen outer(bench.environment, bench.window, MenuBarId::Launcher, QStringLiteral("outer"));
        ProbeScreen inner(bench.environment, bench.window, MenuBarId::Select, QStringLiteral("inner"));
        bench.visit(outer, [&] {
            bench.visit(inner, [&] {
                QTest::keyClick(&inner, Qt::Key_R, Qt::ControlModifier);
                QCOMPARE(bench.window.workArea(), QSize(268, 240));
            });
        });
        QCOMPARE(inner.layouts.last(), QSize(268, 240));
        QCOMPARE(outer.layouts.last(), QSize(268, 240));
    }

    void theGradientShowsWithoutAPictureAndAPictureIsFoundByItsJoinedName()
    {
        ScreenTestBench bench;
        ProbeScreen screen(bench.environment, bench.window, MenuBarId::Converter, QStringLiteral("probe"));
        screen.setBackgroundPicture(L"back.jpg"); // not in the device root yet
        QImage image;
        bench.visit(screen, [&] { image = bench.render(); });
        QCOMPARE(image.pixelColor(0, 267), QColor(85, 121, 151));
        QCOMPARE(image.pixelColor(239, 0), QColor(114, 150, 180));
        // Band i starts at H * (30 - i) / 30: band 2 begins at row 250, band 1 at row 259.
        QCOMPARE(image.pixelColor(100, 250), QColor(86, 122, 152));
        QCOMPARE(image.pixelColor(100, 259), QColor(85, 121, 151));

        QImage red(240, 268, QImage::Format_RGB32);
        red.fill(QColor(200, 0, 0));
        QVERIFY(red.save(QString::fromStdString((bench.root.path() / "back.jpg").string()), "JPG", 100));
        bench.visit(screen, [&] { image = bench.render(); });
        const QColor centre = image.pixelColor(120, 134);
        QVERIFY2(centre.red() > 180 && centre.green() < 30, qPrintable(centre.name()));
    }

    void theBackKeyErasesInTheFocusedEditBoxOnlyWhereTakenOver()
    {
        ScreenTestBench bench;
        ProbeScreen screen(bench.environment, bench.window, MenuBarId::Converter, QStringLiteral("probe"));
        auto* amount = new NumericEdit(&screen);
        for (const bool takenOver : {true, false}) {
            screen.onInitialise = [&] {
                if (takenOver)
                    screen.takeOverBackKey();
                amount->setGeometry(5, 40, 200, 25);
                amount->setText(QString());
                amount->setFocus();
            };
            bench.visit(screen, [&] {
                QTest::keyClicks(amount, QStringLiteral("12x3.5"));
                QCOMPARE(amount->text(), QStringLiteral("123.5")); // typing keeps to a number's characters
                bench.press(Qt::Key_Escape);
                bench.press(Qt::Key_Escape);
                QCOMPARE(amount->text(), takenOver ? QStringLiteral("123") : QStringLiteral("123.5"));
                QVERIFY(screen.isRunning()); // Back never leaves the screen
            });
        }
    }
};

QTEST_MAIN(ScreenFrameworkTest)
#include "ScreenFrameworkTest.moc"
