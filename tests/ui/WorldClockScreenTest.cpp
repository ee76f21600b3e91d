// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/worldclock/WorldClockScreen.h"

#include "CityFixture.h"
#include "ScreenTestBench.h"
#include "screens/select/SelectDialog.h"
#include "settings/RegistrySettings.h"
#include "store/CityCatalogue.h"
#include "store/CurrencyStore.h"
#include "store/InitialCurrencyList.h"
#include "store/WeatherFavourites.h"
#include "ui/Commands.h"
#include "ui/Painting.h"
#include "ui/SoftKeyBar.h"
#include "ui/Spinner.h"
#include "ui/WideString.h"

#include <QTest>

#include <algorithm>
#include <tuple>

namespace {

const wchar_t* const ClockKey = L"Wanderkit\\wrldclk";

// A bench with the fixture catalogue loaded and an empty favourites store.
struct WorldClockBench
{
    explicit WorldClockBench(const std::map<int, std::string>& zones = {})
    {
        CityFixture::write(bench.root, zones);
        cities.Load();
        favourites.loadFavouritesOnce();
    }

    // Runs the screen, drives it, then leaves it with "Services".
    void run(const std::function<void()>& drive)
    {
        bench.run(screen, [&] {
            drive();
            screen.sendCommand(Commands::Services);
        });
    }

    ScreenTestBench bench;
    CityCatalogue cities {bench.objects, bench.paths, bench.messages};
    WeatherFavourites favourites {bench.objects, bench.paths, bench.messages};
    WorldClockScreen screen {bench.environment, bench.window, cities, favourites};
    RegistrySettings registry {bench.settings};
};

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

class WorldClockScreenTest : public QObject
{
    Q_OBJECT

private slots:
    void aFreshDeviceShowsTheDefaultCitiesAndWritesThem()
    {
        const wchar_t* const names[] = {L"clock", L"clock1", L"clock2", L"clock3", L"clock4"};
        const std::uint32_t cities[] = {0, 684, 756, 565, 988};
        WorldClockBench t;
        t.run([&] {
            for (int slot = 0; slot < 5; ++slot) {
                QCOMPARE(t.screen.slotCity(slot), cities[slot]);
                QCOMPARE(t.screen.shownName(slot), QStringLiteral("C%1").arg(cities[slot], 4, 10, QLatin1Char('0')));
            }
            // "syncltz" is read first and created as 1, which creates the key: the clock values that
            // follow find their key and are only written when the screen is left.
            QCOMPARE(t.registry.GetDWORD(ClockKey, L"syncltz"), 1u);
            for (const wchar_t* name : names) {
                t.registry.GetDWORD(ClockKey, name);
                QCOMPARE(t.registry.Status(), RegistrySettings::ValueMissing);
            }
        });
        for (int slot = 0; slot < 5; ++slot) {
            QCOMPARE(t.registry.GetDWORD(ClockKey, names[slot]), cities[slot]);
            QCOMPARE(t.registry.Status(), RegistrySettings::Read);
        }
    }

    void theHomeClockFitsTheWidestNameAndTwelveHourTimeInBothOrientations()
    {
        ScreenTestBench bench;
        bench.root.write("cities.lst", TempDir::read(WANDERKIT_SHIPPED_DEVICE_ROOT "/cities.lst"));
        CityCatalogue cities {bench.objects, bench.paths, bench.messages};
        WeatherFavourites favourites {bench.objects, bench.paths, bench.messages};
        cities.Load();
        favourites.loadFavouritesOnce();
        // The catalogue's widest name in the home name's full size.
        const QFontMetrics metrics(Painting::makeFont(23, Painting::Bold));
        std::uint32_t widest = 0;
        QString widestName;
        for (std::uint32_t i = 0; i < cities.Count(); ++i) {
            const QString name = ToQString(cities.Record(i).name);
            if (metrics.horizontalAdvance(name) > metrics.horizontalAdvance(widestName))
                std::tie(widest, widestName) = std::pair(i, name);
        }
        RegistrySettings registry {bench.settings};
        registry.SetDWORD(ClockKey, L"clock", widest);
        registry.SetDWORD(L"Wanderkit", L"twelvehour", 1);
        bench.clock.set(FakeDeviceClock::at(2026, 1, 5, 0, 0, 0));
        WorldClockScreen screen {bench.environment, bench.window, cities, favourites};
        bench.run(screen, [&] {
            for (const int width : {240, 268}) {
                QCOMPARE(screen.shownName(0), widestName);
                QCOMPARE(screen.shownTime(0) + screen.shownSuffix(0), QStringLiteral("12:00:00AM"));
                // The name's line and the time's line, under the 25-pixel title: no white text
                // pixel in the last 6 columns.
                const QImage image = bench.render();
                int rightmost = 0;
                for (int y = 25; y < 90; ++y)
                    for (int x = 0; x < width; ++x)
                        if (const QColor c = image.pixelColor(x, y); std::min({c.red(), c.green(), c.blue()}) >= 235)
                            rightmost = std::max(rightmost, x);
                QVERIFY2(rightmost > 200 && rightmost < width - 6, qPrintable(QString::number(rightmost)));
                bench.press(Qt::Key_R, Qt::ControlModifier);
            }
            screen.sendCommand(Commands::Services);
        });
    }

    void aMissingValueOfAnExistingKeyIsWrittenOnlyOnLeaving()
    {
        WorldClockBench t;
        t.registry.SetDWORD(ClockKey, L"clock1", 10);
        t.run([&] {
            QCOMPARE(t.screen.slotCity(1), 10u);
            QCOMPARE(t.screen.slotCity(2), 756u);
            t.registry.GetDWORD(ClockKey, L"clock2");
            QCOMPARE(t.registry.Status(), RegistrySettings::ValueMissing);
        });
        QCOMPARE(t.registry.GetDWORD(ClockKey, L"clock2"), 756u);
        QCOMPARE(t.registry.Status(), RegistrySettings::Read);
    }

    void homeShowsTheDeviceTimeAndCitiesTheirOwn()
    {
        // Home C0000 is on +1 with a European rule; C0684 on -5 with a North American one.
        WorldClockBench t({{0, "1;1;88;2;298;3"}, {684, "-5;1;67;2;305;2"}, {988, "9;0;0;0;0;0"}});
        t.bench.clock.set(FakeDeviceClock::at(2026, 7, 13, 9, 5, 7, 250)); // a Monday, summer time
        t.run([&] {
            QCOMPARE(t.screen.shownTime(0), QStringLiteral("09:05:07"));
            QCOMPARE(t.screen.shownDate(0), QStringLiteral("13/7/2026 Done"));
            // Device time is home time (+2 in summer): GMT 07:05, New York 03:05 (-4), Tokyo 16:05.
            QCOMPARE(t.screen.shownTime(1), QStringLiteral("03:05"));
            QCOMPARE(t.screen.shownDate(1), QStringLiteral("13/7 Done"));
            QCOMPARE(t.screen.slot(1).offset, -4);
            QCOMPARE(t.screen.slot(1).observes, 1);
            QCOMPARE(t.screen.shownTime(4), QStringLiteral("16:05"));
            QCOMPARE(t.screen.slot(4).observes, 0);
        });
    }

    void twelveHourDisplayFollowsItsSettingAndMenuItem()
    {
        using Case = std::tuple<int, const char*, const char*, const char*>;
        const Case cases[] = {{0, "12:15:00", "AM", "00:15:00"}, {12, "12:15:00", "PM", "12:15:00"}};
        for (const auto& [hour, twelve, suffix, full] : cases) {
            WorldClockBench t;
            t.registry.SetDWORD(L"Wanderkit", L"twelvehour", 1);
            t.bench.clock.set(FakeDeviceClock::at(2026, 1, 5, hour, 15, 0));
            t.run([&] {
                QCOMPARE(t.screen.shownTime(0), QString::fromLatin1(twelve));
                QCOMPARE(t.screen.shownSuffix(0), QString::fromLatin1(suffix));
                QVERIFY(t.screen.softKeys()->isItemChecked(Commands::TwelveHourClocks));
                // The menu item turns it off and on, and stores the choice.
                t.screen.softKeys()->chooseItem(Commands::TwelveHourClocks);
                QCOMPARE(t.screen.shownTime(0), QString::fromLatin1(full));
                QVERIFY(!t.screen.softKeys()->isItemChecked(Commands::TwelveHourClocks));
                QCOMPARE(t.registry.GetDWORD(L"Wanderkit", L"twelvehour"), 0u);
                t.screen.softKeys()->chooseItem(Commands::TwelveHourClocks);
                QCOMPARE(t.screen.shownTime(0), QString::fromLatin1(twelve));
                QCOMPARE(t.registry.GetDWORD(L"Wanderkit", L"twelvehour"), 1u);
            });
        }
    }

    void theActionKeyOnAClockFaceChangesItsCity()
    {
        WorldClockBench t;
        t.run([&] {
            t.bench.press(Qt::Key_Right);
            t.bench.press(Qt::Key_Right); // "c1"
            t.bench.whenNextShown(t.screen, [&](Screen& dialog) {
                QCOMPARE(static_cast<SelectDialog&>(dialog).selection(), 684);
                t.bench.press(Qt::Key_Down);
                t.bench.press(Qt::Key_Down);
                dialog.sendCommand(Commands::Done);
            });
            t.bench.press(Qt::Key_Return);
            QCOMPARE(t.screen.slotCity(1), 686u);
            QCOMPARE(t.registry.GetDWORD(ClockKey, L"clock1"), 686u);
            QCOMPARE(t.screen.shownName(1), QStringLiteral("C0686"));
        });
    }

    void theHomeCityAndAnIconsCityBecomeWeatherFavourites()
    {
        WorldClockBench t;
        QCOMPARE(t.favourites.count(), 0);
        t.run([&] {
            QCOMPARE(t.favourites.count(), 1);
            QCOMPARE(t.favourites.getName(0), L"C0000");
            QCOMPARE(t.favourites.getLocationCode(0), L"1000");
            QCOMPARE(t.favourites.getLastUpdate(0), L"01/01/2000");
            QCOMPARE(t.favourites.getCountryFile(0), L"Land");
            // "wetp" was missing: it takes the home city's catalogue index.
            QCOMPARE(t.registry.GetDWORD(L"Wanderkit\\weather", L"wetp"), 0u);
            QCOMPARE(t.registry.Status(), RegistrySettings::Read);

            for (int i = 0; i < 3; ++i)
                t.bench.press(Qt::Key_Right); // "w1"
            t.bench.press(Qt::Key_Return);
            QCOMPARE(t.favourites.count(), 2);
            QVERIFY(t.favourites.findByName(L"C0684") != 0);
            QCOMPARE(t.bench.boxes.shown.size(), std::size_t(1));
            QCOMPARE(t.bench.boxes.shown[0].text, QStringLiteral("This city has been added to the Favorites List."));
            // A favourite already: nothing more is added.
            t.bench.press(Qt::Key_Return);
            QCOMPARE(t.favourites.count(), 2);
        });
    }

    void theClockTicksEverySecond()
    {
        WorldClockBench t;
        t.bench.clock.set(FakeDeviceClock::at(2026, 1, 5, 23, 59, 58));
        t.run([&] {
            QCOMPARE(t.screen.shownTime(0), QStringLiteral("23:59:58"));
            t.bench.advance(1000);
            QCOMPARE(t.screen.shownTime(0), QStringLiteral("23:59:59"));
            t.bench.advance(1000);
            QCOMPARE(t.screen.shownTime(0), QStringLiteral("00:00:00"));
            QCOMPARE(t.screen.shownDate(0), QStringLiteral("6/1/2026 Tue"));
        });
    }

    void theCityPanelDescribesTheHighlightedCity()
    {
        // The panel's values for each kind of zone are tested with their computation; here one city's lines.
        WorldClockBench t({{684, "-5;1;67;2;305;2"}});
        t.bench.clock.set(FakeDeviceClock::at(2026, 7, 13, 12, 0, 0));
        QCOMPARE(panelOf(t.bench, 684),
            (QStringList {QStringLiteral("City: C0684"), QStringLiteral("Country: Land"),
                QStringLiteral("Long/Lat: 2.35/48.85"), QStringLiteral("Daylight Saving: Observing Now"),
                QStringLiteral("DST start/end: 8/3/2026-1/11/2026"),
                QStringLiteral("Time zone (GMT): -5h + 1h (DST)")}));
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
        CurrencyStore store(bench.objects);
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

QTEST_MAIN(WorldClockScreenTest)
#include "WorldClockScreenTest.moc"
