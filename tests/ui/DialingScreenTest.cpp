// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/dialing/DialingScreen.h"

#include "ScreenTestBench.h"
#include "app/ServicesApp.h"
#include "reference/DialingCodes.h"
#include "screens/clothing/ClothingScreen.h"
#include "settings/SettingsTable.h"
#include "ui/Commands.h"
#include "ui/ReportList.h"
#include "ui/SoftKeyBar.h"
#include "ui/Spinner.h"

#include <QTest>
#include <QTimer>

#include <memory>

namespace {

QString fromWide(std::wstring_view text)
{
    return QString::fromWCharArray(text.data(), static_cast<qsizetype>(text.size()));
}

ReportList* international(DialingScreen& screen)
{
    return screen.findChild<ReportList*>(QStringLiteral("internationalReportList"));
}

ReportList* areaCodes(DialingScreen& screen)
{
    return screen.findChild<ReportList*>(QStringLiteral("areaCodeReportList"));
}

Spinner* chooser(DialingScreen& screen)
{
    return screen.findChild<Spinner*>(QStringLiteral("chooserSpinner"));
}

// Runs `screen`, lets `check` drive it, then ends it (also when a check has failed).
void visit(ScreenTestBench& bench, Screen& screen, const std::function<void()>& check)
{
    bench.run(screen, [&] {
        check();
        screen.endScreen();
    });
}

void press(ScreenTestBench& bench, Qt::Key key)
{
    QTest::keyClick(bench.window.focusWidget(), key);
}

QStringList row(const ReportList& list, int index)
{
    return {list.text(index, 0), list.text(index, 1), list.text(index, 2)};
}

QList<int> columnWidths(const ReportList& list)
{
    return {list.columnWidth(0), list.columnWidth(1), list.columnWidth(2)};
}

// Calls `drive` once `screen` is next shown, when someone else (the launcher) opens it.
void whenShown(ScreenTestBench& bench, Screen& screen, const std::function<void()>& drive)
{
    auto connection = std::make_shared<QMetaObject::Connection>();
    *connection = QObject::connect(
        &bench.window, &DeviceWindow::screenShown, &screen, [&screen, connection, drive](Screen& shown) {
            if (&shown != &screen)
                return;
            QObject::disconnect(*connection);
            QTimer::singleShot(0, &screen, drive);
        });
}

} // namespace

class DialingScreenTest : public QObject
{
    Q_OBJECT

private slots:
    void theChooserShowsOneListAndHidesTheOther()
    {
        ScreenTestBench bench;
        DialingScreen screen(bench.environment, bench.window);
        const auto shown
            = [&] { return std::pair(international(screen)->isVisible(), areaCodes(screen)->isVisible()); };
        for (int pass = 0; pass < 2; ++pass) {
            visit(bench, screen, [&] {
                QCOMPARE(chooser(screen)->items(),
                    (QStringList {QStringLiteral("International Dialing Codes"), QStringLiteral("US Area Codes")}));
                QCOMPARE(bench.window.focusWidget(), chooser(screen));
                QCOMPARE(shown(), std::pair(true, false));
                press(bench, Qt::Key_Right);
                QCOMPARE(shown(), std::pair(false, true));
                press(bench, Qt::Key_Right); // no third table: nothing changes
                QCOMPARE(shown(), std::pair(false, true));
                press(bench, Qt::Key_Left);
                QCOMPARE(shown(), std::pair(true, false));
                press(bench, Qt::Key_Right); // left on the area codes, the next visit starts international again
            });
        }
    }

    void theListsHoldEveryRowInTableOrder()
    {
        ScreenTestBench bench;
        DialingScreen screen(bench.environment, bench.window);
        for (int pass = 0; pass < 2; ++pass) { // filled afresh at each opening, never doubled
            visit(bench, screen, [&] {
                const ReportList& countries = *international(screen);
                const ReportList& cities = *areaCodes(screen);
                QCOMPARE(countries.rowCount(), 244);
                QCOMPARE(cities.rowCount(), 259);
                const auto countryRows = DialingCodes::International();
                for (int i = 0; i < countries.rowCount(); ++i) {
                    const auto& stored = countryRows[static_cast<std::size_t>(i)];
                    QCOMPARE(row(countries, i),
                        (QStringList {
                            fromWide(stored.country), QLatin1Char('+') + fromWide(stored.code), fromWide(stored.gmt)}));
                }
                const auto cityRows = DialingCodes::UsAreaCodes();
                for (int i = 0; i < cities.rowCount(); ++i) {
                    const auto& stored = cityRows[static_cast<std::size_t>(i)];
                    QCOMPARE(row(cities, i),
                        (QStringList {fromWide(stored.city), fromWide(stored.state), fromWide(stored.code)}));
                }
            });
        }
    }

    void telltaleRowsShowAsWritten()
    {
        struct Case
        {
            bool international;
            int row;
            QStringList texts;
        };
        const auto texts = [](const char* a, const char* b, const char* c) {
            return QStringList {QString::fromUtf8(a), QString::fromUtf8(b), QString::fromUtf8(c)};
        };
        const Case cases[] = {
            {true, 0, texts("Afghanistan", "+93", "+4.5")},
            {true, 8, texts("Antigua and Barbuda", "+1 268 ", "-4")},
            {true, 24, texts("Bermuda", "+1 +441 or 809 ", "-4")},
            {true, 46, texts("Cocos Islands ", "+672 ", "+x")},
            {true, 48, texts("Comoros", "+269 ", "+x")},
            {true, 57, texts("Diego Garcia", "+246 ", "+x")},
            {true, 77, texts("Fyrom (Macedonia) ", "+389", "+x")},
            {false, 0, texts("Akron", "Ohio(OH)", "+330")},
            {false, 166, texts("New York", "New York(NY)", "+212")},
            {false, 167, texts("New York", "New York(NY)", "+718")},
            {false, 168, texts("New York", "New York(NY)", "+347")},
            {false, 169, texts("New York", "New York(NY)", "+917")},
            {false, 258, texts("Wyoming", "Wyoming(WY)", "+307")},
        };
        ScreenTestBench bench;
        DialingScreen screen(bench.environment, bench.window);
        visit(bench, screen, [&] {
            for (const Case& c : cases)
                QCOMPARE(row(c.international ? *international(screen) : *areaCodes(screen), c.row), c.texts);
        });
    }

    void layoutAndColumnWidthsFollowTheWorkArea()
    {
        struct Case
        {
            QSize area;
            QList<int> countryWidths;
            QList<int> cityWidths;
        };
        const Case cases[] = {
            {{240, 268}, {108, 62, 49}, {84, 96, 40}},
            {{268, 240}, {120, 69, 55}, {93, 107, 45}},
            {{240, 268}, {108, 62, 49}, {84, 96, 40}},
        };
        ScreenTestBench bench;
        DialingScreen screen(bench.environment, bench.window);
        visit(bench, screen, [&] {
            for (const Case& c : cases) {
                bench.window.setWorkArea(c.area);
                const QRect lists(0, 61, c.area.width(), c.area.height() - 61);
                QCOMPARE(chooser(screen)->geometry(), QRect(6, 31, c.area.width() - 17, 24));
                QCOMPARE(international(screen)->geometry(), lists);
                QCOMPARE(areaCodes(screen)->geometry(), lists);
                QCOMPARE(columnWidths(*international(screen)), c.countryWidths);
                press(bench, Qt::Key_Right); // the area codes are sized when they are shown
                QCOMPARE(columnWidths(*areaCodes(screen)), c.cityWidths);
                press(bench, Qt::Key_Left);
            }
        });
    }

    void theTitleBandAndTheChoosersFrameArePainted()
    {
        ScreenTestBench bench;
        DialingScreen screen(bench.environment, bench.window);
        QImage image;
        visit(bench, screen, [&] { image = bench.render(); });
        QCOMPARE(image.pixelColor(235, 2), QColor(0, 178, 235));
        QCOMPARE(image.pixelColor(235, 24), QColor(0, 178, 235));
        // The frame runs one pixel outside the chooser at (6, 31), 223 x 24.
        for (const QPoint point : {QPoint(5, 40), QPoint(229, 40), QPoint(100, 30), QPoint(100, 55)})
            QCOMPARE(image.pixelColor(point), QColor(Qt::black));
        QVERIFY(image.pixelColor(4, 40) != QColor(Qt::black));
    }

    void theArrowKeysReachTheShownList()
    {
        ScreenTestBench bench;
        DialingScreen screen(bench.environment, bench.window);
        visit(bench, screen, [&] {
            press(bench, Qt::Key_Down);
            QCOMPARE(bench.window.focusWidget(), international(screen));
            press(bench, Qt::Key_Down);
            press(bench, Qt::Key_Down);
            QCOMPARE(international(screen)->currentIndex().row(), 1);
            QCOMPARE(international(screen)->selectedItems().size(), 1);
            press(bench, Qt::Key_Up);
            press(bench, Qt::Key_Up); // from the first row back to the chooser
            QCOMPARE(bench.window.focusWidget(), chooser(screen));
        });
    }

    void theLauncherOpensBothScreensAndGetsBackItsSelection()
    {
        for (const int service : {5, 6}) {
            ScreenTestBench bench;
            ServicesApp launcher(bench.environment, bench.window);
            Screen* screen = launcher.serviceScreen(service);
            QVERIFY(service == 5 ? qobject_cast<ClothingScreen*>(screen) != nullptr
                                 : qobject_cast<DialingScreen*>(screen) != nullptr);
            bool servicesEnabled = false;
            bool exitEnded = false;
            bench.run(launcher, [&] {
                for (int i = 0; i < service; ++i)
                    press(bench, Qt::Key_Right);
                whenShown(bench, *screen, [&] {
                    servicesEnabled = screen->softKeys()->isKeyEnabled(Commands::Services);
                    press(bench, Qt::Key_F1);
                    screen->endScreen(); // in case the key did nothing
                });
                press(bench, Qt::Key_Return); // returns once the screen has ended
                QCOMPARE(bench.window.topScreen(), &launcher);
                QCOMPARE(launcher.selection(), service);
                QVERIFY(!launcher.softKeys()->isKeyEnabled(Commands::Services));

                whenShown(bench, *screen, [&] {
                    press(bench, Qt::Key_Down);
                    press(bench, Qt::Key_Right);
                    screen->softKeys()->chooseItem(Commands::Exit);
                    exitEnded = bench.window.isExiting();
                    bench.window.exitAll(); // in case the item did nothing
                });
                press(bench, Qt::Key_Return);
            });
            QVERIFY(servicesEnabled);
            QVERIFY(exitEnded);
            QVERIFY(!screen->isRunning() && !launcher.isRunning());
            if (service == 5) { // the clothing screen saved the wearer chosen before "Exit"
                RegistrySettings settings(*bench.settings);
                QCOMPARE(ReadSetting(settings, Settings::ClothesWho), 1u);
            }
        }
    }
};

QTEST_MAIN(DialingScreenTest)
#include "DialingScreenTest.moc"
