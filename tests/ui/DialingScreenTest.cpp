// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/dialing/DialingScreen.h"

#include "ScreenTestBench.h"
#include "ui/Painting.h"
#include "ui/ReportList.h"
#include "ui/Spinner.h"

#include <QPainter>
#include <QTest>

#include <tuple>

namespace {

// The screen, its chooser and its two lists.
struct DialingBench
{
    // Which list shows: the international codes, the area codes.
    std::pair<bool, bool> shown() const { return {countries()->isVisible(), areaCodes()->isVisible()}; }

    ScreenTestBench bench;
    DialingScreen screen {bench.environment, bench.window};
    Spinner* chooser = child<Spinner>(screen, "chooserSpinner");
    // The lists, made at the first opening.
    ReportList* countries() const { return child<ReportList>(screen, "internationalReportList"); }
    ReportList* areaCodes() const { return child<ReportList>(screen, "areaCodeReportList"); }
};

} // namespace

class DialingScreenTest : public QObject
{
    Q_OBJECT

private slots:
    void theChooserShowsOneListAndTheArrowsReachIt()
    {
        DialingBench t;
        const auto international = std::pair(true, false);
        const auto areaCodes = std::pair(false, true);
        // The arrows, then letters: a list starting with it, or nothing.
        const std::pair<Qt::Key, std::pair<bool, bool>> steps[]
            = {{Qt::Key_Right, areaCodes}, {Qt::Key_Right, areaCodes}, // no third table
                {Qt::Key_Left, international}, {Qt::Key_U, areaCodes}, {Qt::Key_X, areaCodes},
                {Qt::Key_I, international}, {Qt::Key_Right, areaCodes}};
        for (int pass = 0; pass < 2; ++pass) { // left on the area codes, the next visit starts international again
            t.bench.visit(t.screen, [&] {
                QCOMPARE(t.chooser->items(),
                    (QStringList {QStringLiteral("International Dialing Codes"), QStringLiteral("US Area Codes")}));
                QCOMPARE(t.bench.window.focusWidget(), t.chooser);
                QCOMPARE(t.shown(), international);
                const QImage internationalShown = t.bench.render();
                for (const auto& [key, shown] : steps) {
                    t.bench.press(key);
                    QCOMPARE(t.shown(), shown);
                    QCOMPARE(t.chooser->currentIndex(), shown.first ? 0 : 1);
                    if (key == Qt::Key_I)
                        QCOMPARE(t.bench.render(), internationalShown);
                }
                if (pass == 1)
                    return;
                // The arrow keys reach the shown list, and Up from its first row comes back to the chooser.
                t.bench.press(Qt::Key_Down);
                QCOMPARE(t.bench.window.focusWidget(), t.areaCodes());
                t.bench.press(Qt::Key_Down);
                t.bench.press(Qt::Key_Down);
                QCOMPARE(t.areaCodes()->currentIndex().row(), 1);
                QCOMPARE(t.areaCodes()->selectedItems().size(), 1);
                t.bench.press(Qt::Key_Up);
                t.bench.press(Qt::Key_Up);
                QCOMPARE(t.bench.window.focusWidget(), t.chooser);
            });
        }
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
        DialingBench t;
        t.bench.visit(t.screen, [&] {
            const QImage image = t.bench.render();
            QCOMPARE(image.copy(0, 0, 240, 25).convertToFormat(QImage::Format_RGB32), expected);
            // The frame runs one pixel outside the chooser at (6, 31), 223 x 24.
            for (const QPoint point : {QPoint(5, 40), QPoint(229, 40), QPoint(100, 30), QPoint(100, 55)})
                QCOMPARE(image.pixelColor(point), QColor(Qt::black));
            QVERIFY(image.pixelColor(4, 40) != QColor(Qt::black));
        });
    }

    void theListsHoldEveryRowInTableOrderOnce()
    {
        // The tables are tested with them; here, which field lands in which column, from the first row to
        // the last, and no row twice after a second opening.
        const auto rows = [](const ReportList* list) {
            return QStringList {list->text(0, 0), list->text(0, 1), list->text(0, 2),
                list->text(list->rowCount() - 1, 0), list->text(list->rowCount() - 1, 1),
                list->text(list->rowCount() - 1, 2), QString::number(list->rowCount())};
        };
        DialingBench t;
        for (int pass = 0; pass < 2; ++pass) {
            t.bench.visit(t.screen, [&] {
                QCOMPARE(rows(t.countries()).join(u'|'), QStringLiteral("Afghanistan|+93|+4.5|Zimbabwe|+263|+2|244"));
                QCOMPARE(
                    rows(t.areaCodes()).join(u'|'), QStringLiteral("Akron|Ohio(OH)|+330|Wyoming|Wyoming(WY)|+307|259"));
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
        const auto widths = [](const ReportList* list) {
            return QList {list->columnWidth(0), list->columnWidth(1), list->columnWidth(2)};
        };
        DialingBench t;
        t.bench.visit(t.screen, [&] {
            for (const auto& [area, countryWidths, cityWidths] : cases) {
                t.bench.window.setWorkArea(area);
                const QRect lists(0, 61, area.width(), area.height() - 61);
                QCOMPARE(t.chooser->geometry(), QRect(6, 31, area.width() - 17, 24));
                QCOMPARE(t.countries()->geometry(), lists);
                QCOMPARE(t.areaCodes()->geometry(), lists);
                QCOMPARE(widths(t.countries()), countryWidths);
                t.bench.press(Qt::Key_Right); // the area codes are sized when they are shown
                QCOMPARE(widths(t.areaCodes()), cityWidths);
                t.bench.press(Qt::Key_Left);
            }
        });
    }
};

QTEST_MAIN(DialingScreenTest)
#include "DialingScreenTest.moc"
