// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/clothing/ClothingScreen.h"

#include "ScreenTestBench.h"
#include "reference/ClothingSizes.h"
#include "settings/SettingsTable.h"
#include "text/StringTable.h"
#include "ui/Commands.h"
#include "ui/SoftKeyBar.h"
#include "ui/Spinner.h"
#include "ui/WideString.h"

#include <QTest>

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

} // namespace

class ClothingScreenTest : public QObject
{
    Q_OBJECT

private slots:
    void eachWearerShowsItsGarmentsAndTheChosenTable()
    {
        ScreenTestBench bench;
        ClothingScreen screen(bench.environment, bench.window);
        bench.store(Settings::ClothesKind, 3);
        bench.visit(screen, [&] {
            auto* wearer = child<Spinner>(screen, "wearerSpinner");
            auto* garment = child<Spinner>(screen, "garmentSpinner");
            QCOMPARE(wearer->items(), texts(ClothingSizes::Wearers()));
            wearer->setFocus();
            for (int i = 0; i < 3; ++i, bench.press(Qt::Key_Right)) {
                const int shown = i == 0 ? 3 : 0; // another wearer starts on the first garment
                QCOMPARE(wearer->currentIndex(), i);
                QCOMPARE(garment->items(), texts(ClothingSizes::Garments(i)));
                QCOMPARE(garment->currentIndex(), shown);
                QCOMPARE(std::pair(screen.tableTitle(), screen.shownRows()), table(i, shown));
            }
            QCOMPARE(wearer->currentIndex(), 2); // the wearer list does not wrap
        });
    }

    void shiftStepsHideTenCharactersEachUpToTwentyAndTheFocusWalksRound()
    {
        const std::pair<Qt::Key, int> steps[] = {{Qt::Key_Right, 1}, {Qt::Key_Right, 2}, {Qt::Key_Right, 2},
            {Qt::Key_Left, 1}, {Qt::Key_Left, 0}, {Qt::Key_Left, 0}, {Qt::Key_Right, 1}};
        ScreenTestBench bench;
        ClothingScreen screen(bench.environment, bench.window);
        bench.visit(screen, [&] {
            const QStringList unshifted = table(0, 0).second;
            QCOMPARE(screen.shownRows(), unshifted);
            QCOMPARE(bench.window.focusWidget(), child<Spinner>(screen, "shiftSpinner"));
            for (const auto& [key, shift] : steps) {
                bench.press(key);
                QCOMPARE(screen.shift(), shift);
                for (int row = 0; row < 4; ++row)
                    QCOMPARE(screen.shownRows().at(row), unshifted.at(row).mid(10 * shift));
            }
        });
        // A new visit starts unscrolled; Down and Up walk the lists round; nothing to undo or clear here.
        bench.visit(screen, [&] {
            QCOMPARE(screen.shift(), 0);
            for (const char* name : {"wearerSpinner", "garmentSpinner", "shiftSpinner"}) {
                bench.press(Qt::Key_Down);
                QCOMPARE(bench.window.focusWidget(), child<Spinner>(screen, name));
            }
            bench.press(Qt::Key_Up);
            bench.press(Qt::Key_Up);
            QCOMPARE(bench.window.focusWidget(), child<Spinner>(screen, "wearerSpinner"));
            screen.softKeys()->chooseItem(Commands::Undo);
            screen.softKeys()->chooseItem(Commands::Clear);
            QCOMPARE(std::pair(screen.tableTitle(), screen.shownRows()), table(0, 0));
        });
    }

    void storedChoicesAreReadWithTheirDefaultsAndWrittenOnLeaving()
    {
        using Case = std::tuple<std::optional<std::uint32_t>, std::optional<std::uint32_t>, int, int>;
        const Case cases[] = {
            {std::nullopt, std::nullopt, 0, 0}, // a fresh device
            {1, std::nullopt, 1, 0},
            {1, 3, 1, 3},
            {2, 2, 2, 2},
            {2, 4, 2, 0}, // Children have three garments
            {3, 1, 0, 1}, // no fourth wearer
            {70000, 70000, 0, 0},
        };
        for (const auto& [who, cloth, wearer, garment] : cases) {
            ScreenTestBench bench;
            ClothingScreen screen(bench.environment, bench.window);
            if (who)
                bench.store(Settings::ClothesWho, *who);
            if (cloth)
                bench.store(Settings::ClothesKind, *cloth);
            bench.visit(screen, [&] {
                QCOMPARE(child<Spinner>(screen, "wearerSpinner")->currentIndex(), wearer);
                QCOMPARE(child<Spinner>(screen, "garmentSpinner")->currentIndex(), garment);
                QCOMPARE(screen.tableTitle(), table(wearer, garment).first);
                // Reading writes no default back.
                QCOMPARE(bench.stored(Settings::ClothesWho), who.value_or(ScreenTestBench::NotStored));
                QCOMPARE(bench.stored(Settings::ClothesKind), cloth.value_or(ScreenTestBench::NotStored));
            });
            // Leaving writes what was shown.
            QCOMPARE(bench.stored(Settings::ClothesWho), static_cast<std::uint32_t>(wearer));
            QCOMPARE(bench.stored(Settings::ClothesKind), static_cast<std::uint32_t>(garment));
        }
    }
};

QTEST_MAIN(ClothingScreenTest)
#include "ClothingScreenTest.moc"
