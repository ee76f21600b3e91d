// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/select/SelectDialog.h"

#include "CityFixture.h"
#include "ScreenTestBench.h"
#include "store/CityCatalogue.h"
#include "store/CurrencyStore.h"
#include "store/InitialCurrencyList.h"
#include "ui/Commands.h"
#include "ui/SoftKeyBar.h"
#include "ui/Spinner.h"

#include <QTest>

#include <tuple>

namespace {

// Runs a city dialog starting at `selection` and returns its panel lines as shown.
QStringList panelOf(ScreenTestBench& bench, int selection)
{
    SelectDialog dialog(bench.environment, bench.window);
    dialog.setSelection(selection);
    QStringList lines;
    bench.run(dialog, [&] {
        lines = dialog.panelLines();
        dialog.sendCommand(Commands::Done);
    });
    return lines;
}

} // namespace

class SelectDialogTest : public QObject
{
    Q_OBJECT

private slots:
    void theCityPanelDescribesTheHighlightedCity()
    {
        using Case = std::tuple<SystemTime, int, const char*, const char*, const char*>;
        const SystemTime july = FakeDeviceClock::at(2026, 7, 13, 12, 0, 0);
        const Case cases[] = {
            {july, 10, "Never observing", "-", "5h30"},
            {july, 684, "Observing Now", "8/3/2026-1/11/2026", "-5h + 1h (DST)"},
            {FakeDeviceClock::at(2026, 1, 13, 12, 0, 0), 684, "Not observing now", "8/3/2026-1/11/2026", "-5h"},
        };
        for (const auto& [now, city, status, period, zone] : cases) {
            ScreenTestBench bench;
            CityFixture::write(bench.root, {{10, "530;0;0;0;0;0"}, {684, "-5;1;67;2;305;2"}});
            CityCatalogue(*bench.objects, bench.paths, bench.messages).Load();
            bench.clock.set(now);
            QCOMPARE(panelOf(bench, city),
                (QStringList {QStringLiteral("City: C%1").arg(city, 4, 10, QLatin1Char('0')),
                    QStringLiteral("Country: Land"), QStringLiteral("Long/Lat: 2.35/48.85"),
                    QStringLiteral("Daylight Saving: ") + QLatin1String(status),
                    QStringLiteral("DST start/end: ") + QLatin1String(period),
                    QStringLiteral("Time zone (GMT): ") + QLatin1String(zone)}));
        }
    }

    void theSelectionFollowsTheListAndComesBack()
    {
        ScreenTestBench bench;
        CityFixture::write(bench.root, {});
        SelectDialog dialog(bench.environment, bench.window);
        dialog.setSelection(998);
        bench.run(dialog, [&] {
            bench.press(Qt::Key_Down);
            bench.press(Qt::Key_Down); // the last city: no wrapping
            QCOMPARE(dialog.panelLines().first(), QStringLiteral("City: C0999"));
            bench.press(Qt::Key_Up);
            bench.window.topSoftKeys()->pressLeft(); // "Done"
        });
        QCOMPARE(dialog.selection(), 998);

        // A starting selection beyond the list selects nothing, and nothing comes back.
        dialog.setSelection(5000);
        bench.run(dialog, [&] { dialog.sendCommand(Commands::Done); });
        QCOMPARE(dialog.selection(), -1);
    }

    void currencyModeSkipsEntriesWithoutCodeAndName()
    {
        ScreenTestBench bench;
        // The count promises a third currency the file does not hold: it is stored empty.
        bench.root.write("currs.lst", "3\nEUR_Euro_1.1#USD_US Dollar_1#");
        CurrencyStore store(*bench.objects);
        store.SetInitialList(ReadInitialCurrencies(bench.paths, bench.messages));
        store.Load();
        QCOMPARE(store.RecordCount(), 3);

        SelectDialog dialog(bench.environment, bench.window);
        dialog.setMode(SelectDialog::Mode::Currency);
        dialog.setSelection(0);
        bench.run(dialog, [&] {
            const auto* list = dialog.findChild<Spinner*>(QStringLiteral("choiceSpinner"));
            QCOMPARE(list->items(), (QStringList {QStringLiteral("EUR - Euro"), QStringLiteral("USD - US Dollar")}));
            QVERIFY(dialog.panelLines().isEmpty());
            bench.press(Qt::Key_Down);
            QCOMPARE(dialog.selection(), 1);
            dialog.sendCommand(Commands::Done);
        });
        QCOMPARE(dialog.selection(), 1);
    }
};

QTEST_MAIN(SelectDialogTest)
#include "SelectDialogTest.moc"
