// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/map/MapScreen.h"

#include "CityFixture.h"
#include "ScreenTestBench.h"
#include "app/PngFile.h"

#include <QTemporaryDir>

namespace {

// A picture whose every pixel differs from its neighbours in all three channels.
QImage patterned(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, qRgb((x * 7 + y) % 256, (y * 5 + 3 * x) % 256, (x * 11 + y * 13 + 1) % 256));
    return image;
}

const QRgb Marker = MapRenderer::MarkerColour.rgb();

// A bench with a catalogue loaded; `write` fills the device root first.
struct MapBench
{
    explicit MapBench(
        const std::function<void(const TempDir&)>& write = [](const TempDir& root) { CityFixture::write(root, {}); })
    {
        write(bench.root);
        bench.cities.Load();
    }

    // The map as drawn after a full repaint.
    QImage map()
    {
        bench.render();
        return screen.mapPicture();
    }

    ScreenTestBench bench;
    MapScreen screen {bench.environment, bench.window, bench.cities, bench.favourites};
};

} // namespace

class MapScreenTest : public QObject
{
    Q_OBJECT

private slots:
    // When the map is drawn again is checked on every tick by the soak test.
    void aStepDrawsItsArrowLargeUntilTheNextTickAndWritesMapclockAtOnce()
    {
        MapBench t; // 1,000 cities
        t.bench.store(Settings::MapClock, 999); // the last city, kept
        t.bench.visit(t.screen, [&] {
            const int top = t.screen.mapLayout().mapHeight;
            // The parts of the 24-pixel arrows outside the 16-pixel ones: right of the small left arrow
            // (x 5 to 20) and left of the small right arrow (x 219 to 234).
            const QRect leftOnly(22, top + 4, 7, 24);
            const QRect rightOnly(211, top + 4, 7, 24);
            const QImage still = t.bench.render();
            QCOMPARE(t.bench.window.windowTitle(), QStringLiteral("Wandrekit")); // the map's own caption, misspelt
            t.bench.press(Qt::Key_Right); // right from the last city: the first
            const QImage right = t.bench.render();
            QVERIFY(right.copy(rightOnly) != still.copy(rightOnly));
            QVERIFY(right.copy(leftOnly) == still.copy(leftOnly));
            QCOMPARE(t.bench.stored(Settings::MapClock), 0u); // written at once
            t.bench.advance(MapScreen::TickMilliseconds);
            QVERIFY(t.bench.render().copy(rightOnly) == still.copy(rightOnly));
            t.bench.press(Qt::Key_Left); // left from the first: the last
            QVERIFY(t.bench.render().copy(leftOnly) != still.copy(leftOnly));
            QCOMPARE(t.screen.shownCityName(), QStringLiteral("C0999"));
            t.bench.store(Settings::MapClock, 7); // someone else's value, overwritten on leaving
        });
        QCOMPARE(t.bench.stored(Settings::MapClock), 999u);
    }

    void markersShowTheClocksCitiesOnTheDayPictureWhoseNightKeepsOnlyItsBlue()
    {
        // "bmap.jpg", the night picture, is loaded and held but never drawn: night is the day picture's blue.
        MapBench t([](const TempDir& root) {
            // Five cities "A0" to "A4" on GMT at whole-degree (longitude, latitude): (0, 0), (0, 90), (-120, 20),
            // (60, -30) and (120, 45).
            root.write("cities.lst",
                "Test places\n5\nx;A0;Land;0;0;0;0;0;0;0;0\nx;A1;Land;0;90;0;0;0;0;0;0\nx;A2;Land;-120;20;0;0;0;0;0;0\n"
                "x;A3;Land;60;-30;0;0;0;0;0;0\nx;A4;Land;120;45;0;0;0;0;0;0\n");
            // A day picture of the map's own size, so that the plain stretch copies it pixel for pixel.
            QVERIFY(patterned(QSize(240, 138)).save(QString::fromStdString((root.path() / "day.jpg").string()), "JPG"));
            QImage white(240, 138, QImage::Format_RGB32);
            white.fill(Qt::white);
            QVERIFY(white.save(QString::fromStdString((root.path() / "bmap.jpg").string()), "JPG"));
        });
        for (std::uint32_t slot = 1; slot <= 4; ++slot)
            t.bench.store(*Settings::ClockCities[slot], slot);
        t.bench.store(Settings::MapClock, 5); // past the last city: the first is shown and written on leaving
        const QImage day(QString::fromStdString((t.bench.root.path() / "day.jpg").string()));
        const QRgb selected = MapRenderer::SelectedColour.rgb();
        t.bench.visit(t.screen, [&] {
            QVERIFY(t.screen.holdsNightPicture());
            QCOMPARE(t.screen.selectedCity(), 0);
            QVERIFY(t.screen.showCities()); // "showcs" absent
            QVERIFY(t.screen.softKeys()->isItemChecked(Commands::ShowCitiesOnMap));
            QImage map = t.map();
            // Every pixel's rule is tested with the renderer; here the screen's picture at known places.
            // 1 January, 12:00 UTC: night around the antimeridian, day at (0, -53), in the southern summer.
            QCOMPARE(map.pixel(0, 69), qRgb(0, 0, qBlue(day.pixel(0, 69))));
            QCOMPARE(map.pixel(120, 110), day.pixel(120, 110));
            // Where a point lands is the renderer's, which cities are the clocks' is tested with the map's
            // cities: here, that they are drawn. A0 at longitude 0, latitude 0 is the middle column and row;
            // A3 at (60, -30) is (120 + 40, 69 + 23).
            QCOMPARE(map.pixel(120, 69), selected);
            QCOMPARE(map.pixel(160, 92), Marker);
            for (const std::uint32_t shown : {0u, 1u}) {
                t.screen.sendCommand(Commands::ShowCitiesOnMap);
                QCOMPARE(t.screen.showCities(), shown == 1);
                QCOMPARE(t.screen.softKeys()->isItemChecked(Commands::ShowCitiesOnMap), shown == 1);
                QCOMPARE(t.bench.stored(Settings::ShowCities), shown);
                map = t.map();
                QCOMPARE(map.pixel(120, 69) == selected && map.pixel(160, 92) == Marker, shown == 1);
            }
            t.bench.press(Qt::Key_R, Qt::ControlModifier); // on its side: (240 - 25) x 4 / 7 rows
            QCOMPARE(t.map().size(), QSize(268, 122));
            QVERIFY(t.screen.mapLayout().sun.bottom() < 240);
        });
        // Nor is anything said about either picture: the fixture's only message is its missing favourites file.
        for (const auto& message : t.bench.messages.messages)
            QVERIFY(message.text.find(L"jpg") == std::wstring::npos);
        QVERIFY(t.bench.boxes.shown.empty());
        QCOMPARE(t.bench.stored(Settings::MapClock), 0u);
        t.bench.store(Settings::ShowCities, 0);
        t.bench.visit(t.screen, [&] { QVERIFY(!t.screen.showCities()); });
    }

    void theCityTimeAndItsSunFollowTheZoneAndDaylightSaving()
    {
        // The device (C0000) is on GMT. C0684 observes from day 67 (8 March 2026) of its own date, which 04:59 GMT
        // is not yet; 05:01 is. The local time follows "twelvehour"; the city's time does not.
        MapBench t([](const TempDir& root) { CityFixture::write(root, {{684, "-5;1;67;2;305;2"}}); });
        t.bench.clock.set(FakeDeviceClock::at(2026, 3, 8, 4, 59, 0));
        t.bench.store(Settings::TwelveHour, 1);
        t.bench.store(Settings::MapClock, 684);
        t.bench.visit(t.screen, [&] {
            QCOMPARE(t.screen.shownLocalTime(), QStringLiteral("04:59:00 AM"));
            QCOMPARE(t.screen.cityTime(), QStringLiteral("23:59"));
            QCOMPARE(t.screen.sun().utcHours, -5);
            t.bench.advance(2 * 60 * 1000);
            QCOMPARE(t.screen.sun().utcHours, -4);
        });
    }

    // ---- The renderer alone.
    void nightPixelsKeepOnlyTheBlueChannel()
    {
        // Every month's column step, including a span ending on row mapHeight (June's south pole).
        const QSize size(240, 138);
        const QImage day = patterned(size);
        for (const std::uint16_t month : {3, 6, 12}) {
            const TerminatorSun sun = computeSunForTerminator({2026, month, 0, 21, 12, 0, 0, 0}, {0, 0});
            const TerminatorColumns night = ComputeTerminatorColumns(sun, 240, 138, month);
            const QImage map = MapRenderer::render(day, size, MapRenderer::Stretch::Plain, night, nullptr);
            for (const NightSpan& span : night.spans) {
                if (span.column >= size.width())
                    continue;
                for (int y = 0; y < size.height(); ++y) {
                    const QRgb before = day.pixel(span.column, y);
                    const bool dark = y >= span.first && y <= span.last;
                    QCOMPARE(map.pixel(span.column, y), dark ? qRgb(0, 0, qBlue(before)) : before);
                }
            }
        }
    }

    void pngFilesReadBackPixelForPixel()
    {
        // An unwritable file is refused through the map command.
        QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("map.png"));
        for (const QSize size : {QSize(1, 1), QSize(7, 3), QSize(1024, 700)}) {
            QString error;
            QVERIFY(PngFile::write(patterned(size), path, error));
            QCOMPARE(QImage(path, "PNG").convertToFormat(QImage::Format_RGB32), patterned(size));
        }
    }
};

QTEST_MAIN(MapScreenTest)
#include "MapScreenTest.moc"
