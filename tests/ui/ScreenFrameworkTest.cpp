// SPDX-License-Identifier: GPL-3.0-or-later
#include "ScreenTestBench.h"
#include "ui/Commands.h"
#include "ui/MenuBars.h"
#include "ui/NumericEdit.h"
#include "ui/Screen.h"
#include "ui/SoftKeyBar.h"

#include <QMenu>
#include <QTest>

#include <tuple>

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
    QList<QSize> layouts;
    QList<int> commands;
    std::function<void()> onDestroy;
    std::function<void()> onInitialise;
    using Screen::setBackgroundPicture;
    using Screen::startScreenTimer;
    using Screen::takeOverBackKey;
    int ticks = 0;

protected:
    void initialise() override
    {
        ++initialised;
        if (onInitialise)
            onInitialise();
    }
    void layout(int width, int height) override { layouts.append(QSize(width, height)); }
    void destroyWork() override
    {
        ++destroyed;
        if (onDestroy)
            onDestroy();
    }
    void timerTick(int) override { ++ticks; }
    void command(int id) override
    {
        commands.append(id);
        Screen::command(id);
    }
};

} // namespace

class ScreenFrameworkTest : public QObject
{
    Q_OBJECT

private slots:
    void servicesEndsTheScreenAndRunsItsDestroyWorkOnce()
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
    }

    void exitFromANestedDialogUnwindsEveryRunInnermostFirst()
    {
        ScreenTestBench bench;
        ProbeScreen outer(bench.environment, bench.window, MenuBarId::Launcher, QStringLiteral("outer"));
        ProbeScreen middle(bench.environment, bench.window, MenuBarId::WorldClocks, QStringLiteral("middle"));
        ProbeScreen inner(bench.environment, bench.window, MenuBarId::Converter, QStringLiteral("inner"));
        QStringList order;
        outer.onDestroy = [&] { order << QStringLiteral("outer"); };
        middle.onDestroy = [&] { order << QStringLiteral("middle"); };
        inner.onDestroy = [&] { order << QStringLiteral("inner"); };
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

    void everyMenuBarHasItsKeysAndPopups()
    {
        // The popup's items are separated by "|", a separator is empty.
        using Case = std::tuple<MenuBarId, const char*, bool, const char*, const char*>;
        const Case cases[] = {
            {MenuBarId::WorldClocks, "Services", true, "Menu", "Twelve Hours Clocks||Exit"},
            {MenuBarId::Select, "Done", true, "", ""},
            {MenuBarId::Launcher, "Services", false, "Menu", "Exit"},
            {MenuBarId::Favourites, "Done", true, "Add", ""},
            {MenuBarId::Converter, "Services", true, "Menu", "Undo|Clear||Exit"},
        };
        for (const auto& [id, left, leftEnabled, right, popup] : cases) {
            const MenuBarLayout* barLayout = MenuBars::find(id);
            QVERIFY2(barLayout, qPrintable(QString::number(static_cast<int>(id))));
            SoftKeyBar bar(*barLayout);
            QCOMPARE(bar.keyText(0), QString::fromUtf8(left));
            QCOMPARE(bar.keyText(1), QString::fromUtf8(right));
            QCOMPARE(bar.isKeyEnabled(barLayout->left.command), leftEnabled);
            QStringList items;
            if (QMenu* menu = bar.popup()) {
                for (QAction* action : menu->actions())
                    items << (action->isSeparator() ? QString() : action->text());
            }
            const QString expected = QString::fromUtf8(popup);
            QCOMPARE(items, expected.isEmpty() ? QStringList() : expected.split(QLatin1Char('|')));
        }
        QVERIFY(!MenuBars::find(static_cast<MenuBarId>(100)));
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
                QCOMPARE(bench.window.size(), QSize(268, 240 + SoftKeyBar::BarHeight));
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

    void timersTickOnlyWhileTheScreenRuns()
    {
        ScreenTestBench bench;
        ProbeScreen screen(bench.environment, bench.window, MenuBarId::WorldClocks, QStringLiteral("probe"));
        bench.visit(screen, [&] {
            screen.startScreenTimer(1, 10);
            bench.advance(25);
            QCOMPARE(screen.ticks, 2);
        });
        QVERIFY(!bench.timers.isRunning(&screen, 1));
        bench.advance(50);
        QCOMPARE(screen.ticks, 2);
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
