// SPDX-License-Identifier: GPL-3.0-or-later
// The two reference screens: clothing sizes and dialing codes.
#include "ScreenTestBench.h"
#include "reference/ClothingSizes.h"
#include "screens/clothing/ClothingScreen.h"
#include "screens/dialing/DialingScreen.h"
#include "text/StringTable.h"
#include "ui/Painting.h"
#include "ui/ReportList.h"
#include "ui/WideString.h"

#include <QPainter>

#include <optional>
#include <tuple>

namespace {

QStringList texts(std::span<const int> ids)
{
    QStringList result;
    for (const int id : ids)
        result << ToQString(StringTable::Load(id));
    return result;
}

// The title and rows of a table as the reference tables hold them.
std::pair<QString, QStringList> table(int wearer, int garment)
{
    const ClothingSizes::Table* found = ClothingSizes::Find(wearer, garment);
    QStringList rows;
    for (const std::wstring_view row : found->rows)
        rows << ToQString(row);
    return {ToQString(StringTable::Load(found->titleId)), rows};
}

// A title band as the handheld writes it: the text's cell's top-left corner at (5, 0), baseline at the ascent.
QImage titleBand(const QString& title)
{
    const QFont font = Painting::makeFont(24, Painting::Bold);
    QImage band(240, 25, QImage::Format_RGB32);
    band.fill(QColor(0, 178, 235));
    QPainter painter(&band);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(5, QFontMetrics(font).ascent(), title);
    painter.end();
    return band;
}

// Whether a white pixel of the title's "g" shows in the 3 rows under the 25-pixel band: the text is not cut there.
bool titleTailShows(const QImage& screen)
{
    return showsWhite(screen, QRect(0, 25, 120, 3));
}

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

class ReferenceScreensTest : public QObject
{
    Q_OBJECT

private slots:
    // ---- Clothing sizes.
    void storedChoicesPickTheGarmentsAndTheTableAndAreWrittenOnLeaving()
    {
        using Case = std::tuple<std::optional<std::uint32_t>, std::optional<std::uint32_t>, int, int>;
        const Case cases[] = {
            {std::nullopt, std::nullopt, 0, 0}, // a fresh device
            {1, 3, 1, 3}, {2, 4, 2, 0}, // Children have three garments
            {3, 1, 0, 1}, // no fourth wearer
        };
        for (const auto& [who, cloth, wearer, garment] : cases) {
            ScreenTestBench bench;
            ClothingScreen screen(bench.environment, bench.window);
            for (const auto& [setting, value] :
                {std::pair(&Settings::ClothesWho, who), {&Settings::ClothesKind, cloth}})
                if (value)
                    bench.store(*setting, *value);
            bench.visit(screen, [&] {
                auto* garments = child<Spinner>(screen, "garmentSpinner");
                QCOMPARE(std::pair(child<Spinner>(screen, "wearerSpinner")->currentIndex(), garments->currentIndex()),
                    std::pair(wearer, garment));
                QCOMPARE(garments->items(), texts(ClothingSizes::Garments(wearer)));
                QCOMPARE(std::pair(screen.tableTitle(), screen.shownRows()), table(wearer, garment));
                QVERIFY(titleTailShows(bench.render())); // "Clothing sizes"
            });
            // Leaving writes what was shown.
            QCOMPARE(std::pair(bench.stored(Settings::ClothesWho), bench.stored(Settings::ClothesKind)),
                std::pair(std::uint32_t(wearer), std::uint32_t(garment)));
        }
    }

    void anotherWearerStartsOnItsFirstGarmentAndShiftStepsHideTenCharactersEachUpToTwenty()
    {
        const std::pair<Qt::Key, int> steps[] = {{Qt::Key_Right, 1}, {Qt::Key_Right, 2}, {Qt::Key_Right, 2},
            {Qt::Key_Left, 1}, {Qt::Key_Left, 0}, {Qt::Key_Left, 0}, {Qt::Key_Right, 1}};
        ScreenTestBench bench;
        ClothingScreen screen(bench.environment, bench.window);
        bench.store(Settings::ClothesKind, 3);
        bench.visit(screen, [&] {
            auto* wearer = child<Spinner>(screen, "wearerSpinner");
            auto* shifter = child<Spinner>(screen, "shiftSpinner");
            QCOMPARE(bench.window.focusWidget(), shifter);
            QCOMPARE(wearer->items(), texts(ClothingSizes::Wearers()));
            wearer->setFocus();
            for (const int next : {1, 2, 2}) { // the wearer list does not wrap
                bench.press(Qt::Key_Right);
                QCOMPARE(std::pair(wearer->currentIndex(), child<Spinner>(screen, "garmentSpinner")->currentIndex()),
                    std::pair(next, 0));
                QCOMPARE(screen.tableTitle(), table(next, 0).first);
            }
            const QStringList unshifted = table(2, 0).second;
            shifter->setFocus();
            for (const auto& [key, shift] : steps) {
                bench.press(key);
                QCOMPARE(screen.shift(), shift);
                for (int row = 0; row < unshifted.size(); ++row)
                    QCOMPARE(screen.shownRows().at(row), unshifted.at(row).mid(10 * shift));
            }
        });
        // A new visit starts unscrolled.
        bench.visit(screen, [&] { QCOMPARE(screen.shift(), 0); });
    }

    // ---- Dialing codes.
    void underTheTitleTheFramedChooserShowsOneListAndTheArrowsReachIt()
    {
        DialingBench t;
        const auto international = std::pair(true, false);
        const auto areaCodes = std::pair(false, true);
        // The arrows, then letters: a list starting with it, or nothing.
        const std::pair<Qt::Key, std::pair<bool, bool>> steps[]
            = {{Qt::Key_Right, areaCodes}, {Qt::Key_Right, areaCodes}, // no third table
                {Qt::Key_Left, international}, {Qt::Key_U, areaCodes}, {Qt::Key_X, areaCodes}};
        t.bench.visit(t.screen, [&] {
            QCOMPARE(t.chooser->items(),
                (QStringList {QStringLiteral("International Dialing Codes"), QStringLiteral("US Area Codes")}));
            QCOMPARE(t.bench.window.focusWidget(), t.chooser);
            QCOMPARE(t.shown(), international);
            const QImage internationalShown = t.bench.render();
            QCOMPARE(internationalShown.copy(0, 0, 240, 25).convertToFormat(QImage::Format_RGB32),
                titleBand(QStringLiteral("Dialing codes")));
            // The tail of the title's "g" goes on below the band, uncut.
            QVERIFY(titleTailShows(internationalShown));
            // The frame runs one pixel outside the chooser at (6, 31), 223 x 24.
            for (const QPoint point : {QPoint(5, 40), QPoint(229, 40), QPoint(100, 30), QPoint(100, 55)})
                QCOMPARE(internationalShown.pixelColor(point), QColor(Qt::black));
            QVERIFY(internationalShown.pixelColor(4, 40) != QColor(Qt::black));
            for (const auto& [key, shown] : steps) {
                t.bench.press(key);
                QCOMPARE(t.shown(), shown);
                QCOMPARE(t.chooser->currentIndex(), shown.first ? 0 : 1);
            }
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
        // Left on the area codes, the next visit starts on the international codes again.
        t.bench.visit(
            t.screen, [&] { QCOMPARE(std::pair(t.shown(), t.chooser->currentIndex()), std::pair(international, 0)); });
    }

    void theListsHoldEveryRowOnceInColumnsThatFollowTheWorkArea()
    {
        // The tables are tested with them; here, which field lands in which column, from the first row to
        // the last, and no row twice after a second opening.
        const auto rows = [](const ReportList* list) {
            const int last = list->rowCount() - 1;
            return QStringList {list->text(0, 0), list->text(0, 1), list->text(0, 2), list->text(last, 0),
                list->text(last, 1), list->text(last, 2), QString::number(last + 1)}
                .join(u'|');
        };
        const auto widths = [](const ReportList* list) {
            return QList {list->columnWidth(0), list->columnWidth(1), list->columnWidth(2)};
        };
        using Case = std::tuple<QSize, QList<int>, QList<int>>;
        const Case cases[] = {{{240, 268}, {108, 62, 49}, {84, 96, 40}}, {{268, 240}, {120, 69, 55}, {93, 107, 45}}};
        DialingBench t;
        for (const auto& [area, countryWidths, cityWidths] : cases) {
            t.bench.visit(t.screen, [&] {
                QCOMPARE(rows(t.countries()), QStringLiteral("Afghanistan|+93|+4.5|Zimbabwe|+263|+2|244"));
                QCOMPARE(rows(t.areaCodes()), QStringLiteral("Akron|Ohio(OH)|+330|Wyoming|Wyoming(WY)|+307|259"));
                t.bench.window.setWorkArea(area);
                QCOMPARE(t.areaCodes()->geometry(), QRect(0, 61, area.width(), area.height() - 61));
                QCOMPARE(widths(t.countries()), countryWidths);
                t.bench.press(Qt::Key_Right); // the area codes are sized when they are shown
                QCOMPARE(widths(t.areaCodes()), cityWidths);
            });
        }
    }
};

QTEST_MAIN(ReferenceScreensTest)
#include "ReferenceScreensTest.moc"
