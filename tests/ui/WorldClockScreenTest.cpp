// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/worldclock/WorldClockScreen.h"

#include "CityFixture.h"
#include "ScreenTestBench.h"
#include "screens/map/MapScreen.h"
#include "screens/select/SelectDialog.h"
#include "screens/weather/WeatherOpener.h"
#include "ui/Painting.h"
#include "ui/WideString.h"

#include <algorithm>

namespace {

// A bench with the fixture catalogue (or the given cities file) loaded and an empty favourites store.
struct WorldClockBench
{
    explicit WorldClockBench(const std::string& citiesFile = {})
    {
        CityFixture::write(bench.root, {});
        if (!citiesFile.empty())
            bench.root.write("cities.lst", citiesFile);
        bench.loadStores();
    }

    ScreenTestBench bench;
    WorldClockScreen screen {bench.environment, bench.window, bench.cities, bench.favourites};
};

// Records who asked for the weather screen.
struct RecordingOpener final : WeatherOpener
{
    void openWeather(Screen&, const std::wstring& cityName) override { cities.push_back(cityName); }
    std::vector<std::wstring> cities;
};

} // namespace

class WorldClockScreenTest : public QObject
{
    Q_OBJECT

private slots:
    void aFreshDevicesIconsMakeFavouritesAndOpenForecastsAndItsFacesChangeCitiesThroughTheSelectDialog()
    {
        const std::uint32_t cities[] = {0, 684, 756, 565, 988};
        WorldClockBench t;
        RecordingOpener opener;
        t.screen.setWeatherOpener(&opener);
        t.bench.visit(t.screen, [&] {
            // "syncltz" is read first and created as 1, which creates the key: the clock values that follow
            // find their key and are only written when the screen is left or a city changed.
            QCOMPARE(t.bench.stored(Settings::SyncLocalZone), 1u);
            for (int slot = 0; slot < 5; ++slot) {
                QCOMPARE(t.screen.shownName(slot), QStringLiteral("C%1").arg(cities[slot], 4, 10, QLatin1Char('0')));
                QCOMPARE(t.bench.stored(*Settings::ClockCities[std::size_t(slot)]), ScreenTestBench::NotStored);
            }
            // The home city is made a favourite at once, and "wetp", missing, takes its catalogue index.
            QCOMPARE(t.bench.favouriteRecords(), std::vector<std::wstring> {L"C0000|1000|01/01/2000|Land"});
            QCOMPARE(t.bench.stored(Settings::WeatherPosition), 0u);
            t.bench.press(Qt::Key_Right); // "w": a favourite already, nothing told
            t.bench.press(Qt::Key_Return);
            t.bench.press(Qt::Key_Right);
            t.bench.press(Qt::Key_Right); // "w1": made a favourite first, which is told
            t.bench.press(Qt::Key_Return);
            QVERIFY(t.bench.favourites.findByName(L"C0684") != 0);
            QCOMPARE(t.bench.boxes.shown.size(), std::size_t(1));
            QCOMPARE(t.bench.boxes.shown[0].text, QStringLiteral("This city has been added to the Favorites List."));
            t.bench.press(Qt::Key_Return); // nothing more is added
            QCOMPARE(t.bench.favourites.count(), 2);
            // The action key on a clock face ("c1") changes its city, written at once.
            t.bench.press(Qt::Key_Left);
            t.bench.whenNextShown(t.screen, [&](Screen& dialog) {
                QCOMPARE(static_cast<SelectDialog&>(dialog).selection(), 684);
                QCOMPARE(t.bench.window.windowTitle(), QStringLiteral("Wandrekit")); // the dialog's caption, misspelt
                t.bench.press(Qt::Key_Down);
                t.bench.press(Qt::Key_Down);
                dialog.sendCommand(Commands::Done);
            });
            t.bench.press(Qt::Key_Return);
            QCOMPARE(t.bench.window.windowTitle(), QStringLiteral("Wanderkit")); // back with the screen beneath
            QCOMPARE(t.bench.stored(Settings::Clock1), 686u);
            QCOMPARE(t.screen.shownName(1), QStringLiteral("C0686"));
        });
        QCOMPARE(opener.cities, (std::vector<std::wstring> {L"C0000", L"C0684", L"C0684"}));
        for (std::size_t slot = 0; slot < 5; ++slot)
            QCOMPARE(t.bench.stored(*Settings::ClockCities[slot]), slot == 1 ? 686u : cities[slot]);
        // The Select dialog the faces open stops at its ends; a selection beyond the list gives nothing back.
        SelectDialog dialog(t.bench.environment, t.bench.window);
        dialog.setSelection(998);
        t.bench.run(dialog, [&] {
            t.bench.press(Qt::Key_Down);
            t.bench.press(Qt::Key_Down); // the last city: no wrapping
            // The panel's lines are the city information's, tested with it; here, the highlighted city's.
            QCOMPARE(dialog.panelLines().first(), QStringLiteral("City: C0999"));
            t.bench.press(Qt::Key_Up);
            t.bench.window.topSoftKeys()->pressLeft(); // "Done"
        });
        QCOMPARE(dialog.selection(), 998);
        dialog.setSelection(5000);
        t.bench.run(dialog, [&] { dialog.sendCommand(Commands::Done); });
        QCOMPARE(dialog.selection(), -1);
    }

    void aCityChosenInTheSelectDialogIsKeptHoweverTheDialogEnds_data()
    {
        QTest::addColumn<bool>("onMap");
        QTest::addColumn<bool>("closeWindow");
        QTest::newRow("World Clocks, window closed over the dialog") << false << true;
        QTest::newRow("map, Done") << true << false;
        QTest::newRow("map, window closed over the dialog") << true << true;
    }

    void aCityChosenInTheSelectDialogIsKeptHoweverTheDialogEnds()
    {
        // The dialog has no cancel: the highlighted city is the choice, as it is when "Done" ends it.
        QFETCH(bool, onMap);
        QFETCH(bool, closeWindow);
        WorldClockBench t;
        MapScreen map {t.bench.environment, t.bench.window, t.bench.cities, t.bench.favourites};
        Screen& screen = onMap ? static_cast<Screen&>(map) : t.screen;
        const DwordSetting& setting = onMap ? Settings::MapClock : Settings::HomeClock;
        t.bench.store(setting, 3);
        t.bench.whenNextShown(screen, [&](Screen& dialog) {
            t.bench.press(Qt::Key_Down);
            closeWindow ? void(t.bench.window.close()) : dialog.sendCommand(Commands::Done);
        });
        t.bench.run(screen, [&] {
            screen.sendCommand(Commands::Ok); // the home clock's face, or "Change City"
            screen.sendCommand(Commands::Services);
        });
        QCOMPARE(t.bench.stored(setting), 4u);
    }

    void aCityNamedLikeAFavouriteOfAnotherCountryIsOneAlready()
    {
        // The home Twin (Alpha) is made a favourite at opening; Twin (Beta) is then in the store by its name.
        WorldClockBench t("h\n2\nx;Twin;Alpha;0;0;0;0;0;0;0;0\nx;Twin;Beta;0;0;0;0;0;0;0;0\n");
        t.bench.root.write("weatcs/Alpha", "Twin;1\n");
        t.bench.root.write("weatcs/Beta", "Twin;2\n");
        t.bench.store(Settings::Clock1, 1);
        RecordingOpener opener;
        t.screen.setWeatherOpener(&opener);
        t.bench.visit(t.screen, [&] {
            for (int step = 0; step < 3; ++step)
                t.bench.press(Qt::Key_Right); // "w1"
            t.bench.press(Qt::Key_Return);
        });
        QCOMPARE(t.bench.favourites.count(), 1);
        QVERIFY(t.bench.boxes.shown.empty());
        QCOMPARE(opener.cities, std::vector<std::wstring> {L"Twin"});
    }

    void theHomeClockFitsItsWidestNameInBothOrientationsAndTheMenuTogglesTwelveHours()
    {
        WorldClockBench t(TempDir::read(WANDERKIT_SHIPPED_DEVICE_ROOT "/cities.lst"));
        // The catalogue's widest name in the home name's full size.
        const QFontMetrics metrics(Painting::makeFont(23, Painting::Bold));
        std::uint32_t widest = 0;
        for (std::uint32_t i = 1; i < t.bench.cities.Count(); ++i)
            if (metrics.horizontalAdvance(ToQString(t.bench.cities.Record(i).name))
                > metrics.horizontalAdvance(ToQString(t.bench.cities.Record(widest).name)))
                widest = i;
        t.bench.store(Settings::HomeClock, widest);
        t.bench.store(Settings::TwelveHour, 1);
        t.bench.clock.set(FakeDeviceClock::at(2026, 1, 5, 0, 0, 0));
        t.bench.visit(t.screen, [&] {
            for (const int width : {240, 268}) {
                QCOMPARE(t.screen.shownName(0), ToQString(t.bench.cities.Record(widest).name));
                QCOMPARE(t.screen.shownTime(0) + t.screen.shownSuffix(0), QStringLiteral("12:00:00AM"));
                // The name's line and the time's line, under the 25-pixel title: no white text
                // pixel in the last 6 columns.
                const QImage image = t.bench.render();
                int rightmost = 0;
                for (int y = 25; y < 90; ++y)
                    for (int x = 0; x < width; ++x)
                        if (const QColor c = image.pixelColor(x, y); std::min({c.red(), c.green(), c.blue()}) >= 235)
                            rightmost = std::max(rightmost, x);
                QVERIFY2(rightmost > 200 && rightmost < width - 6, qPrintable(QString::number(rightmost)));
                t.bench.press(Qt::Key_R, Qt::ControlModifier);
            }
            // The menu item turns the twelve-hour time off and on, and stores the choice.
            QVERIFY(t.screen.softKeys()->isItemChecked(Commands::TwelveHourClocks));
            for (const std::uint32_t twelveHour : {0u, 1u}) {
                t.screen.softKeys()->chooseItem(Commands::TwelveHourClocks);
                QCOMPARE(t.screen.shownTime(0), twelveHour ? QStringLiteral("12:00:00") : QStringLiteral("00:00:00"));
                QCOMPARE(t.screen.softKeys()->isItemChecked(Commands::TwelveHourClocks), twelveHour == 1);
                QCOMPARE(t.bench.stored(Settings::TwelveHour), twelveHour);
            }
        });
    }

    void aDaylightMarkNeverRunsUnderATwelveHourTime()
    {
        // Summer evening on the default cities: New York, Paris and London are in daylight saving at
        // 5 to 11 PM, whose times reach further left than a 24-hour time does.
        WorldClockBench t(TempDir::read(WANDERKIT_SHIPPED_DEVICE_ROOT "/cities.lst"));
        t.bench.store(Settings::TwelveHour, 1);
        t.bench.clock.set(FakeDeviceClock::at(2026, 6, 21, 23, 48, 7));
        const auto isMark = [](const QColor& c) { return c.red() > 200 && c.green() > 150 && c.blue() < 130; };
        const auto isWhite = [](const QColor& c) { return std::min({c.red(), c.green(), c.blue()}) >= 235; };
        t.bench.visit(t.screen, [&] {
            for (int turn = 0; turn < 2; ++turn) {
                // Right of the dials, on every pixel line, no white time pixel between the mark's first and last.
                const QImage image = t.bench.render();
                for (int y = 25; y < t.bench.window.workArea().height(); ++y) {
                    int first = image.width(), last = -1;
                    for (int x = 60; x < image.width(); ++x)
                        if (isMark(image.pixelColor(x, y)))
                            first = std::min(first, x), last = x;
                    for (int x = first; x < last; ++x)
                        QVERIFY2(!isWhite(image.pixelColor(x, y)), qPrintable(QStringLiteral("%1,%2").arg(x).arg(y)));
                }
                t.bench.press(Qt::Key_R, Qt::ControlModifier);
            }
        });
    }
};

QTEST_MAIN(WorldClockScreenTest)
#include "WorldClockScreenTest.moc"
