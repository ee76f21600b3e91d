// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/map/MapRenderer.h"

#include "astro/MapPoint.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>

namespace {

void paintMarker(
    QPainter& painter, const MapRenderer::Marker& marker, QSize map, const QFontMetrics& metrics, int scale)
{
    const MapPoint point = MapPointOf(marker.longitude, marker.latitude, map.width(), map.height());
    const int left = LabelOnLeft(point.x, map.width()) ? point.x - metrics.horizontalAdvance(marker.name) - 5 * scale
                                                       : point.x + 5 * scale;
    const int baseline = point.y - 6 * scale + metrics.ascent(); // the label's top 6 pixels above the point
    const QColor& colour = marker.selected ? MapRenderer::SelectedColour : MapRenderer::MarkerColour;
    painter.setPen(Qt::black);
    painter.drawText(left + scale, baseline, marker.name);
    painter.drawText(left, baseline + scale, marker.name);
    painter.setPen(colour);
    painter.drawText(left, baseline, marker.name);
    painter.fillRect(point.x - 2 * scale, point.y - 2 * scale, 4 * scale, 4 * scale, colour);
}

} // namespace

QImage MapRenderer::dayMap(const QImage& day, QSize size, Stretch stretch)
{
    if (stretch == Stretch::Smooth)
        return day.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).convertToFormat(QImage::Format_RGB32);
    QImage map(size, QImage::Format_RGB32);
    if (map.isNull())
        return map;
    QPainter painter(&map);
    painter.drawImage(QRect(QPoint(0, 0), size), day);
    return map;
}

void MapRenderer::paintTerminator(QImage& map, const TerminatorColumns& columns)
{
    if (map.format() != QImage::Format_RGB32 && map.format() != QImage::Format_ARGB32_Premultiplied)
        map.convertTo(QImage::Format_RGB32);
    const QRgb mask = NightMask.rgba(); // alpha and blue set: AND keeps both
    const int width = map.width();
    const int lastRow = map.height() - 1;
    const qsizetype stride = map.bytesPerLine() / static_cast<qsizetype>(sizeof(QRgb));
    QRgb* const pixels = reinterpret_cast<QRgb*>(map.bits());
    for (const NightSpan& span : columns.spans) {
        if (span.column < 0 || span.column >= width)
            continue;
        QRgb* pixel = pixels + std::max(span.first, 0) * stride + span.column;
        for (int row = std::max(span.first, 0); row <= std::min(span.last, lastRow); ++row, pixel += stride)
            *pixel &= mask;
    }
}

void MapRenderer::paintMarkers(
    QPainter& painter, const std::vector<Marker>& markers, QSize map, const QFont& font, int scale)
{
    painter.setFont(font);
    for (const Marker& marker : markers)
        paintMarker(painter, marker, map, painter.fontMetrics(), scale);
}

QImage MapRenderer::render(
    const QImage& base, QSize size, Stretch stretch, const TerminatorColumns& columns, const MarkerSet* markers)
{
    QImage map = dayMap(base, size, stretch);
    if (map.isNull())
        return map;
    paintTerminator(map, columns);
    if (markers) {
        QPainter painter(&map);
        paintMarkers(painter, markers->markers, size, markers->font, markers->scale);
    }
    return map;
}
