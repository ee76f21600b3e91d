// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/map/MapRenderer.h"

#include "app/PngFile.h"
#include "astro/MapPoint.h"
#include "ui/Painting.h"

#include <QTemporaryDir>
#include <QTest>

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

TerminatorSun sunAt(int month, int day, int hour)
{
    return computeSunForTerminator({2026, static_cast<std::uint16_t>(month), 0, static_cast<std::uint16_t>(day),
                                       static_cast<std::uint16_t>(hour), 0, 0, 0},
        {0, 0});
}

// The rectangle of pixels in `image` that have exactly `colour`; empty when none.
QRect pixelsOf(const QImage& image, QRgb colour)
{
    QRect found;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixel(x, y) == colour)
                found |= QRect(x, y, 1, 1);
    return found;
}

const QRgb Marker = MapRenderer::MarkerColour.rgb();

} // namespace

class MapRendererTest : public QObject
{
    Q_OBJECT

private slots:
    void nightPixelsKeepOnlyTheBlueChannel()
    {
        // Every month's column step, including a span ending on row mapHeight (June's south pole).
        for (const int month : {3, 6, 12}) {
            const QSize size(240, 138);
            const QImage day = patterned(size);
            const TerminatorColumns night = ComputeTerminatorColumns(sunAt(month, 21, 12), 240, 138, month);
            const QImage map = MapRenderer::render(day, size, MapRenderer::Stretch::Plain, night, nullptr);
            QCOMPARE(map.size(), size);
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

    void thePictureIsStretchedOverTheMap()
    {
        // A 2 x 1 picture, red and green halves, on a 10 x 4 map with no night.
        QImage day(2, 1, QImage::Format_RGB32);
        day.setPixel(0, 0, qRgb(255, 0, 0));
        day.setPixel(1, 0, qRgb(0, 255, 0));
        for (const auto stretch : {MapRenderer::Stretch::Plain, MapRenderer::Stretch::Smooth}) {
            const QImage map = MapRenderer::dayMap(day, QSize(10, 4), stretch);
            QCOMPARE(map.size(), QSize(10, 4));
            QCOMPARE(map.pixel(0, 0), qRgb(255, 0, 0));
            QCOMPARE(map.pixel(9, 3), qRgb(0, 255, 0));
        }
    }

    void markersSitOnTheirPointsWithLabelsByTheQuarterRule()
    {
        const QSize size(240, 138);
        QImage black(size, QImage::Format_RGB32);
        black.fill(Qt::black);
        struct Case
        {
            int longitude;
            int latitude;
            QRect square; // 4 x 4 around the point, cut by the map's edge
            bool labelLeft;
        };
        const Case cases[] = {
            // Longitude 0 is the middle column, 120, in the second quarter: label on the left.
            {0, 0, QRect(118, 67, 4, 4), true},
            // Latitude 90 is row 0; -90 row 138, below the last row.
            {0, 90, QRect(118, 0, 4, 2), true}, {-120, 20, QRect(38, 51, 4, 4), false}, // x 40 in the first quarter
            {60, -30, QRect(158, 90, 4, 4), false}, // x 160 in the third, y 69 + 23
            {120, 45, QRect(198, 32, 4, 4), true}, // x 200 in the last
        };
        for (const Case& c : cases) {
            MapRenderer::MarkerSet set {
                {{QStringLiteral("Wxyz"), c.longitude, c.latitude, false}}, Painting::makeFont(14, Painting::Bold), 1};
            const QImage map = MapRenderer::render(black, size, MapRenderer::Stretch::Plain, {}, &set);
            const MapPoint point = MapPointOf(c.longitude, c.latitude, size.width(), size.height());
            // The square and the label's pixels are the marker colour; the square is the only block of it
            // on the point's side, and the label lies wholly on one side of the point.
            QVERIFY2(pixelsOf(map, Marker).contains(c.square), qPrintable(QString::number(c.longitude)));
            QCOMPARE(QRect(point.x - 2, point.y - 2, 4, 4).intersected(QRect(QPoint(0, 0), size)), c.square);
            QImage squareOnly = map;
            for (int y = c.square.top(); y <= c.square.bottom(); ++y)
                for (int x = c.square.left(); x <= c.square.right(); ++x)
                    squareOnly.setPixel(x, y, qRgb(0, 0, 0));
            const QRect label = pixelsOf(squareOnly, Marker);
            QVERIFY(!label.isEmpty());
            if (c.labelLeft)
                QVERIFY2(label.right() < point.x - 2, qPrintable(QString::number(c.longitude)));
            else
                QVERIFY2(label.left() > point.x + 2, qPrintable(QString::number(c.longitude)));
            // The label's top is 6 pixels above the point (the glyphs start a little below it).
            QVERIFY(label.top() >= std::max(0, point.y - 6));
        }
    }

    void pngFilesReadBackPixelForPixel()
    {
        QTemporaryDir folder;
        for (const QSize size : {QSize(1, 1), QSize(7, 3), QSize(300, 200), QSize(1024, 700)}) {
            const QImage picture = patterned(size);
            const QString path = folder.filePath(QStringLiteral("map.png"));
            QString error;
            QVERIFY(PngFile::write(picture, path, error));
            const QImage back(path, "PNG");
            QCOMPARE(back.size(), size);
            QCOMPARE(back.convertToFormat(QImage::Format_RGB32), picture);
        }
        QString error;
        QVERIFY(!PngFile::write(patterned(QSize(4, 4)), folder.filePath(QStringLiteral("no/such/folder.png")), error));
        QVERIFY(!error.isEmpty());
    }
};

QTEST_MAIN(MapRendererTest)
#include "MapRendererTest.moc"
