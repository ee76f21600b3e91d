// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/dialing/DialingScreen.h"

#include "ScreenTestBench.h"
#include "reference/DialingCodes.h"
#include "ui/Painting.h"
#include "ui/ReportList.h"
#include "ui/Spinner.h"
#include "ui/WideString.h"

#include <QPainter>
#include <QTest>

#include <tuple>

namespace {

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

QStringList row(const ReportList& list, int index)
{
    return {list.text(index, 0), list.text(index, 1), list.text(index, 2)};
}

QStringList row(std::wstring_view a, std::wstring_view b, std::wstring_view c)
{
    return {ToQString(a), ToQString(b), ToQString(c)};
}

QList<int> columnWidths(const ReportList& list)
{
    return {list.columnWidth(0), list.columnWidth(1), list.columnWidth(2)};
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
            bench.visit(screen, [&] {
                QCOMPARE(chooser(screen)->items(),
                    (QStringList {QStringLiteral("International Dialing Codes"), QStringLiteral("US Area Codes")}));
                QCOMPARE(bench.window.focusWidget(), chooser(screen));
                QCOMPARE(shown(), std::pair(true, false));
                bench.press(Qt::Key_Right);
                QCOMPARE(shown(), std::pair(false, true));
                bench.press(Qt::Key_Right); // no third table: nothing changes
                QCOMPARE(shown(), std::pair(false, true));
                bench.press(Qt::Key_Left);
                QCOMPARE(shown(), std::pair(true, false));
                bench.press(Qt::Key_Right); // left on the area codes, the next visit starts international again
            });
        }
    }

    void aLetterChoosesTheListStartingWithIt()
    {
        ScreenTestBench bench;
        DialingScreen screen(bench.environment, bench.window);
        bench.visit(screen, [&] {
            const QImage internationalShown = bench.render();
            bench.press(Qt::Key_U); // "US Area Codes"
            QCOMPARE(chooser(screen)->currentText(), QStringLiteral("US Area Codes"));
            QVERIFY(areaCodes(screen)->isVisible() && !international(screen)->isVisible());
            bench.press(Qt::Key_X); // nothing starts with it
            QCOMPARE(chooser(screen)->currentIndex(), 1);
            bench.press(Qt::Key_I);
            QCOMPARE(chooser(screen)->currentIndex(), 0);
            QVERIFY(international(screen)->isVisible() && !areaCodes(screen)->isVisible());
            QCOMPARE(bench.render(), internationalShown);
        });
    }

    void theTitleStartsAtTheBandsTopLeftAndTheChooserIsFramed()
    {
        // The text as the handheld writes it: its cell's top-left corner at (5, 0), baseline at the ascent.
        const QFont font = Painting::makeFont(24, Painting::Bold);
        QImage expected(240, 25, QImage::Format_RGB32);
        expected.fill(QColor(0, 178, 235));
        {
            QPainter painter(&expected);
            painter.setFont(font);
            painter.setPen(Qt::white);
            painter.drawText(5, QFontMetrics(font).ascent(), QStringLiteral("Dialing codes"));
        }
        ScreenTestBench bench;
        DialingScreen screen(bench.environment, bench.window);
        bench.visit(screen, [&] {
            const QImage image = bench.render();
            QCOMPARE(image.copy(0, 0, 240, 25).convertToFormat(QImage::Format_RGB32), expected);
            // The frame runs one pixel outside the chooser at (6, 31), 223 x 24.
            for (const QPoint point : {QPoint(5, 40), QPoint(229, 40), QPoint(100, 30), QPoint(100, 55)})
                QCOMPARE(image.pixelColor(point), QColor(Qt::black));
            QVERIFY(image.pixelColor(4, 40) != QColor(Qt::black));
        });
    }

    void theListsHoldEveryRowInTableOrder()
    {
        ScreenTestBench bench;
        DialingScreen screen(bench.environment, bench.window);
        for (int pass = 0; pass < 2; ++pass) { // filled afresh at each opening, never doubled
            bench.visit(screen, [&] {
                const ReportList& countries = *international(screen);
                const ReportList& cities = *areaCodes(screen);
                QCOMPARE(countries.rowCount(), 244);
                QCOMPARE(cities.rowCount(), 259);
                const auto countryRows = DialingCodes::International();
                for (int i = 0; i < countries.rowCount(); ++i) {
                    const auto& stored = countryRows[static_cast<std::size_t>(i)];
                    QCOMPARE(row(countries, i), row(stored.country, DialingCodes::ShownCode(stored), stored.gmt));
                }
                const auto cityRows = DialingCodes::UsAreaCodes();
                for (int i = 0; i < cities.rowCount(); ++i) {
                    const auto& stored = cityRows[static_cast<std::size_t>(i)];
                    QCOMPARE(row(cities, i), row(stored.city, stored.state, stored.code));
                }
            });
        }
    }

    void layoutAndColumnWidthsFollowTheWorkArea()
    {
        using Case = std::tuple<QSize, QList<int>, QList<int>>;
        const Case cases[] = {
            {{240, 268}, {108, 62, 49}, {84, 96, 40}},
            {{268, 240}, {120, 69, 55}, {93, 107, 45}},
            {{240, 268}, {108, 62, 49}, {84, 96, 40}},
        };
        ScreenTestBench bench;
        DialingScreen screen(bench.environment, bench.window);
        bench.visit(screen, [&] {
            for (const auto& [area, countryWidths, cityWidths] : cases) {
                bench.window.setWorkArea(area);
                const QRect lists(0, 61, area.width(), area.height() - 61);
                QCOMPARE(chooser(screen)->geometry(), QRect(6, 31, area.width() - 17, 24));
                QCOMPARE(international(screen)->geometry(), lists);
                QCOMPARE(areaCodes(screen)->geometry(), lists);
                QCOMPARE(columnWidths(*international(screen)), countryWidths);
                bench.press(Qt::Key_Right); // the area codes are sized when they are shown
                QCOMPARE(columnWidths(*areaCodes(screen)), cityWidths);
                bench.press(Qt::Key_Left);
            }
        });
    }

    void theArrowKeysReachTheShownList()
    {
        ScreenTestBench bench;
        DialingScreen screen(bench.environment, bench.window);
        bench.visit(screen, [&] {
            bench.press(Qt::Key_Down);
            QCOMPARE(bench.window.focusWidget(), international(screen));
            bench.press(Qt::Key_Down);
            bench.press(Qt::Key_Down);
            QCOMPARE(international(screen)->currentIndex().row(), 1);
            QCOMPARE(international(screen)->selectedItems().size(), 1);
            bench.press(Qt::Key_Up);
            bench.press(Qt::Key_Up); // from the first row back to the chooser
            QCOMPARE(bench.window.focusWidget(), chooser(screen));
        });
    }
};

QTEST_MAIN(DialingScreenTest)
#include "DialingScreenTest.moc"
