// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/map/MapScreen.h"

#include "CityFixture.h"
#include "ScreenTestBench.h"
#include "astro/MapPoint.h"
#include "screens/select/SelectDialog.h"
#include "settings/SettingsTable.h"
#include "store/CityCatalogue.h"
#include "store/WeatherFavourites.h"
#include "ui/Commands.h"
#include "ui/SoftKeyBar.h"

#include <QTest>

namespace {

// Six cities "A0" to "A5" at chosen whole-degree coordinates (longitude, latitude), on GMT.
const std::pair<int, int> Places[] = {{0, 0}, {0, 90}, {-120, 20}, {60, -30}, {120, 45}, {10, 10}};

void writePlaces(const TempDir& root)
{
    std::string lines = "Test places\n6\n";
    for (int i = 0; i < 6; ++i)
        lines += "x;A" + std::to_string(i) + ";Land;" + std::to_string(Places[i].first) + ";"
            + std::to_string(Places[i].second) + ";0;0;0;0;0;0\n";
    root.write("cities.lst", lines);
}

// A bench with a catalogue loaded; `write` fills the device root first.
struct MapBench
{
    explicit MapBench(
        const std::function<void(const TempDir&)>& write = [](const TempDir& root) { CityFixture::write(root, {}); })
    {
        write(bench.root);
        cities.Load();
    }

    void run(const std::function<void()>& drive) { bench.visit(screen, drive); }

    // The map as drawn after a full repaint.
    QImage map()
    {
        bench.render();
        return screen.mapPicture();
    }

    ScreenTestBench bench;
    CityCatalogue cities {bench.objects, bench.paths, bench.messages};
    WeatherFavourites favourites {bench.objects, bench.paths, bench.messages};
    MapScreen screen {bench.environment, bench.window, cities, favourites};
};

} // namespace

class MapScreenTest : public QObject
{
    Q_OBJECT

private slots:
    void steppingAndChangeCityWriteMapclockAndRotationLaysTheMapOut()
    {
        MapBench t; // 1,000 cities
        t.run([&] {
            QCOMPARE(t.screen.selectedCity(), 0);
            t.bench.press(Qt::Key_Left); // left from the first city: the last
            QCOMPARE(t.screen.selectedCity(), 999);
            QCOMPARE(t.bench.stored(Settings::MapClock), 999u); // written at once
            QCOMPARE(t.screen.shownCityName(), QStringLiteral("C0999"));
            t.bench.press(Qt::Key_Right); // right from the last: the first
            QCOMPARE(t.screen.selectedCity(), 0);
            QCOMPARE(t.bench.stored(Settings::MapClock), 0u);
            t.bench.press(Qt::Key_Right);
            t.bench.press(Qt::Key_Right);
            QCOMPARE(t.screen.selectedCity(), 2);
            t.bench.whenNextShown(t.screen, [&](Screen& dialog) {
                QCOMPARE(static_cast<SelectDialog&>(dialog).selection(), 2);
                t.bench.press(Qt::Key_Down);
                dialog.sendCommand(Commands::Done);
            });
            t.screen.sendCommand(Commands::ChangeCity);
            QCOMPARE(t.screen.selectedCity(), 3);
            QCOMPARE(t.bench.stored(Settings::MapClock), 3u);
            QCOMPARE(t.screen.shownCityName(), QStringLiteral("C0003"));
            t.bench.store(Settings::MapClock, 7); // someone else's value, overwritten on leaving

            QCOMPARE(t.screen.mapLayout().mapHeight, 138);
            t.bench.press(Qt::Key_R, Qt::ControlModifier);
            QCOMPARE(t.screen.mapLayout().mapHeight, 122); // (240 - 25) x 4 / 7
            QCOMPARE(t.map().size(), QSize(268, 122));
            QVERIFY(t.screen.mapLayout().sun.bottom() < 240);
        });
        QCOMPARE(t.bench.stored(Settings::MapClock), 3u);
    }

    void aStepDrawsItsArrowLargeUntilTheNextTickAndTheMapIsDrawnAgainEvery240()
    {
        MapBench t;
        t.run([&] {
            const qint64 first = t.map().cacheKey();
            t.bench.advance(239 * MapScreen::TickMilliseconds);
            QCOMPARE(t.map().cacheKey(), first);
            t.bench.advance(MapScreen::TickMilliseconds);
            const qint64 second = t.map().cacheKey();
            QVERIFY(second != first);
            t.bench.advance(240 * MapScreen::TickMilliseconds);
            QVERIFY(t.map().cacheKey() != second);

            const int top = t.screen.mapLayout().mapHeight;
            // The parts of the 24-pixel arrows outside the 16-pixel ones: right of the small left arrow
            // (x 5 to 20) and left of the small right arrow (x 219 to 234).
            const QRect leftOnly(22, top + 4, 7, 24);
            const QRect rightOnly(211, top + 4, 7, 24);
            const QImage still = t.bench.render();
            t.bench.press(Qt::Key_Left);
            const QImage left = t.bench.render();
            QVERIFY(left.copy(leftOnly) != still.copy(leftOnly));
            QVERIFY(left.copy(rightOnly) == still.copy(rightOnly));
            t.bench.advance(MapScreen::TickMilliseconds);
            QVERIFY(t.bench.render().copy(leftOnly) == still.copy(leftOnly));
            t.bench.press(Qt::Key_Right);
            const QImage right = t.bench.render();
            QVERIFY(right.copy(rightOnly) != still.copy(rightOnly));
            QVERIFY(right.copy(leftOnly) == still.copy(leftOnly));
        });
    }

    void aStoredCityOutsideTheCatalogueShowsTheFirst()
    {
        // The last city is kept; beyond it, the first is shown and written on leaving.
        for (const std::uint32_t stored : {999u, 1000u, 70000u, 0xFFFFFFFFu}) {
            MapBench t;
            t.bench.store(Settings::MapClock, stored);
            const int shown = stored == 999 ? 999 : 0;
            t.run([&] {
                QCOMPARE(t.screen.selectedCity(), shown);
                QCOMPARE(t.screen.shownCityName(), QStringLiteral("C%1").arg(shown, 4, 10, QLatin1Char('0')));
            });
            QCOMPARE(t.bench.stored(Settings::MapClock), std::uint32_t(shown));
        }
    }

    void markersShowTheClocksCitiesUntilShowCitiesTurnsThemOff()
    {
        MapBench t(writePlaces);
        RegistrySettings registry(t.bench.settings);
        for (int slot = 1; slot <= 4; ++slot)
            registry.SetDWORD(Settings::WorldClockKey, L"clock" + std::to_wstring(slot), std::uint32_t(slot));
        t.bench.store(Settings::MapClock, 3); // A3 is drawn as the selected city
        const QRgb marker = MapRenderer::MarkerColour.rgb();
        const QRgb selected = MapRenderer::SelectedColour.rgb();
        t.run([&] {
            QVERIFY(t.screen.showCities()); // "showcs" absent
            QVERIFY(t.screen.softKeys()->isItemChecked(Commands::ShowCitiesOnMap));
            QImage map = t.map();
            QCOMPARE(map.size(), QSize(240, 138));
            // Where a point lands is the renderer's; here, which cities are marked. A0 at longitude 0,
            // latitude 0 is the middle column and row; A1 at latitude 90 is on row 0; A5, in no clock, is not.
            QCOMPARE(map.pixel(120, 69), marker);
            QCOMPARE(map.pixel(120, 0), marker);
            QCOMPARE(map.pixel(40, 53), marker); // A2: 120 - 80, 69 - 15.3
            QCOMPARE(map.pixel(200, 34), marker); // A4: 120 + 80, 69 - 34.5
            QCOMPARE(map.pixel(160, 92), selected); // A3: 120 + 40, 69 + 23
            const MapPoint a5 = MapPointOf(10, 10, 240, 138);
            QVERIFY(map.pixel(a5.x, a5.y) != marker);
            for (const std::uint32_t shown : {0u, 1u}) {
                t.screen.sendCommand(Commands::ShowCitiesOnMap);
                QCOMPARE(t.screen.showCities(), shown == 1);
                QCOMPARE(t.screen.softKeys()->isItemChecked(Commands::ShowCitiesOnMap), shown == 1);
                QCOMPARE(t.bench.stored(Settings::ShowCities), shown);
                map = t.map();
                QCOMPARE(map.pixel(160, 92) == selected && map.pixel(120, 69) == marker, shown == 1);
            }
        });
        MapBench hidden(writePlaces);
        hidden.bench.store(Settings::ShowCities, 0);
        hidden.run([&] { QVERIFY(!hidden.screen.showCities()); });
    }

    void nightPixelsKeepOnlyTheBlueChannelOfTheDayPictureOrOfTheGradient()
    {
        // "bmap.jpg", the night picture, is loaded and held but never drawn: night is the day picture's blue.
        MapBench t([](const TempDir& root) {
            CityFixture::write(root, {});
            // A day picture of the map's own size, so that the plain stretch copies it pixel for pixel.
            QImage day(240, 138, QImage::Format_RGB32);
            for (int y = 0; y < 138; ++y)
                for (int x = 0; x < 240; ++x)
                    day.setPixel(x, y, qRgb(60 + x % 150, 80 + y % 120, 90 + (x + y) % 160));
            QVERIFY(day.save(QString::fromStdString((root.path() / "day.jpg").string()), "JPG", 100));
            QImage white(240, 138, QImage::Format_RGB32);
            white.fill(Qt::white);
            QVERIFY(white.save(QString::fromStdString((root.path() / "bmap.jpg").string()), "JPG"));
        });
        t.bench.store(Settings::ShowCities, 0);
        const QImage day(QString::fromStdString((t.bench.root.path() / "day.jpg").string()));
        t.run([&] {
            QVERIFY(t.screen.holdsNightPicture());
            const QImage map = t.map();
            // Every pixel's rule is tested with the renderer; here the screen's picture at known places.
            // 1 January, 12:00 UTC: night around the antimeridian and over the north pole; day at (0, 0).
            QCOMPARE(map.pixel(120, 69), day.pixel(120, 69));
            QCOMPARE(map.pixel(0, 69), qRgb(0, 0, qBlue(day.pixel(0, 69))));
            QCOMPARE(map.pixel(120, 0), qRgb(0, 0, qBlue(day.pixel(120, 0))));
        });
        // Without a day picture the gradient is the day.
        MapBench gradient;
        gradient.bench.store(Settings::ShowCities, 0);
        gradient.run([&] {
            // Nor is there a "bmap.jpg": nothing is said about either.
            QVERIFY(!gradient.screen.holdsNightPicture());
            const QImage window = gradient.bench.render();
            // Band 30 (the top) is RGB(114, 150, 180): kept in day, only its blue at night.
            QCOMPARE(window.pixel(120, 69), qRgb(84 + 23, 120 + 23, 150 + 23)); // row 69 is in band 23
            QCOMPARE(window.pixel(120, 2), qRgb(0, 0, 180)); // the north pole's winter night
            QCOMPARE(window.pixel(2, 69), qRgb(0, 0, 173));
        });
        // The fixture has no favourites file, and only that is said.
        for (const auto& message : gradient.bench.messages.messages)
            QVERIFY(message.text.find(L"jpg") == std::wstring::npos);
        QVERIFY(gradient.bench.boxes.shown.empty());
    }

    void theCityTimeAndItsSunFollowTheZoneAndDaylightSaving()
    {
        // C0010 is on +5:30 and the device (C0000) on GMT without a rule: C0010's time is 5:30 ahead, its
        // sun uses 5 hours. C0684 observes from day 67 (8 March 2026) of its own date: at 04:59 GMT its date
        // is still 7 March; two minutes later it is 8 March. The local time follows "twelvehour".
        const std::map<int, std::string> zones {{10, "530;0;0;0;0;0"}, {684, "-5;1;67;2;305;2"}};
        for (const std::uint32_t twelveHour : {1u, 0u}) {
            MapBench t([&](const TempDir& root) { CityFixture::write(root, zones); });
            t.bench.clock.set(FakeDeviceClock::at(2026, 3, 8, 4, 59, 0));
            t.bench.store(Settings::TwelveHour, twelveHour);
            t.bench.store(Settings::MapClock, twelveHour ? 10 : 684);
            t.run([&] {
                if (twelveHour) {
                    QCOMPARE(t.screen.shownLocalTime(), QStringLiteral("04:59:00 AM"));
                    QCOMPARE(t.screen.cityTime(), QStringLiteral("10:29"));
                    QCOMPARE(t.screen.sun().utcHours, 5);
                    return;
                }
                QCOMPARE(t.screen.shownLocalTime(), QStringLiteral("04:59:00"));
                QCOMPARE(t.screen.cityTime(), QStringLiteral("23:59"));
                QCOMPARE(t.screen.sun().utcHours, -5);
                t.bench.advance(2 * 60 * 1000);
                QCOMPARE(t.screen.cityTime(), QStringLiteral("01:01"));
                QCOMPARE(t.screen.sun().utcHours, -4);
            });
        }
    }
};

QTEST_MAIN(MapScreenTest)
#include "MapScreenTest.moc"
