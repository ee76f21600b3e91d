// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/worldclock/ClockDial.h"

#include "time/HandGeometry.h"

#include <QPaintDevice>
#include <QPainter>
#include <QPainterPath>
#include <QPixmapCache>
#include <QPolygon>
#include <QRadialGradient>

namespace {

struct HandShape
{
    double length; // tip, as a share of the dial's half-size
    double width; // half-width at the base, same unit
    double tail; // length behind the centre
    QColor colour;
};

const HandShape HourHand {0.52, 0.09, 0.14, QColor(24, 34, 58)};
const HandShape MinuteHand {0.80, 0.065, 0.16, QColor(24, 34, 58)};
const HandShape SecondHand {0.86, 0.025, 0.22, QColor(210, 36, 36)};

// A hand as a small polygon: its tip at the hand's position, its sides a quarter-turn away on each
// side, and a short tail opposite the tip.
QPolygon handPolygon(const QRect& box, double position, const HandShape& shape)
{
    const int right = box.left() + box.width();
    const int bottom = box.top() + box.height();
    const int centreX = (box.left() + right) / 2;
    const int centreY = (box.top() + bottom) / 2;
    const auto point = [&](double at, double factor) {
        const DialPoint p = HandPoint(at, factor, centreX, centreY, box.left(), box.top(), right, bottom);
        return QPoint(p.x, p.y);
    };
    return QPolygon({point(position, shape.length), point(position + 15, shape.width), point(position + 30, shape.tail),
        point(position - 15, shape.width)});
}

// The face and its hour marks, drawn afresh.
void paintFace(QPainter& painter, const QRect& box)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF face = QRectF(box).adjusted(0.5, 0.5, -0.5, -0.5);
    QRadialGradient shade(face.center() - QPointF(face.width() / 5, face.height() / 5), face.width() * 0.75);
    shade.setColorAt(0, QColor(255, 255, 255));
    shade.setColorAt(1, QColor(214, 224, 236));
    painter.setBrush(shade);
    painter.setPen(QPen(QColor(18, 38, 68), box.width() >= 50 ? 2.5 : 1.6));
    painter.drawEllipse(face);

    const QPointF centre = face.center();
    const double radius = face.width() / 2;
    for (int mark = 0; mark < 12; ++mark) {
        const bool major = mark % 3 == 0;
        const double angle = HandAngle(mark * 5.0);
        const double outer = radius * 0.86;
        const double inner = radius * (major ? 0.66 : 0.76);
        painter.setPen(QPen(QColor(40, 58, 90), major ? std::max(1.6, radius / 14) : 1.0, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(centre + QPointF(std::cos(angle) * inner, std::sin(angle) * inner),
            centre + QPointF(std::cos(angle) * outer, std::sin(angle) * outer));
    }
    painter.restore();
}

} // namespace

void ClockDial::drawFace(QPainter& painter, const QRect& box)
{
    // The face only changes with its size: it is drawn once and kept, since the clocks repaint every second.
    const qreal ratio = painter.device() ? painter.device()->devicePixelRatioF() : 1.0;
    const QString key = QStringLiteral("wanderkit-dial-%1x%2@%3").arg(box.width()).arg(box.height()).arg(ratio);
    QPixmap face;
    if (!QPixmapCache::find(key, &face)) {
        face = QPixmap(box.size() * ratio);
        face.setDevicePixelRatio(ratio);
        face.fill(Qt::transparent);
        QPainter facePainter(&face);
        paintFace(facePainter, QRect(QPoint(0, 0), box.size()));
        QPixmapCache::insert(key, face);
    }
    painter.drawPixmap(box.topLeft(), face);
}

void ClockDial::drawHands(QPainter& painter, const QRect& box, const SystemTime& time, bool withSeconds)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(Qt::NoPen);
    painter.setCompositionMode(QPainter::RasterOp_NotSourceXorDestination);
    const double hour = (time.hour % 12) * 5 + time.minute / 12;
    const auto draw = [&](double position, const HandShape& shape) {
        painter.setBrush(shape.colour);
        painter.drawPolygon(handPolygon(box, position, shape));
    };
    draw(hour, HourHand);
    draw(time.minute, MinuteHand);
    if (withSeconds)
        draw(time.second, SecondHand);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.setRenderHint(QPainter::Antialiasing);
    const double cap = std::max(2.0, box.width() / 18.0);
    painter.setBrush(withSeconds ? SecondHand.colour : HourHand.colour);
    painter.drawEllipse(QPointF(box.left() + box.width() / 2, box.top() + box.height() / 2), cap, cap);
    painter.restore();
}
