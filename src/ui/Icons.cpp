// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Icons.h"

#include <QHash>
#include <QImage>
#include <QPaintDevice>
#include <QPainter>
#include <QPixmap>
#include <QResource>

#include <algorithm>
#include <array>

// The icons live in a resource of this static library, which must be registered by hand.
static void registerIconResource()
{
    Q_INIT_RESOURCE(icons);
}

namespace {

constexpr std::array DrawnSizes {16, 24, 32};

// The drawing made for `pixels`, or the nearest larger one (the largest for anything bigger);
// each drawing is read from the resources once, when first needed.
const QPixmap& drawing(int id, int pixels)
{
    static QHash<int, QPixmap> drawings;
    const auto fits = std::ranges::find_if(DrawnSizes, [pixels](int drawn) { return drawn >= pixels; });
    const int drawn = fits == DrawnSizes.end() ? DrawnSizes.back() : *fits;
    const int key = id * 100 + drawn;
    auto it = drawings.find(key);
    if (it == drawings.end()) {
        if (drawings.isEmpty())
            registerIconResource();
        // Raw RGBA bytes: no image decoder (and no search for decoder plugins) is involved.
        const QByteArray bytes = QResource(QStringLiteral(":/icons/%1-%2.rgba").arg(id).arg(drawn)).uncompressedData();
        const QImage image(reinterpret_cast<const uchar*>(bytes.constData()), drawn, drawn, QImage::Format_RGBA8888);
        it = drawings.insert(key, QPixmap::fromImage(image.copy()));
    }
    return *it;
}

} // namespace

void Icons::draw(QPainter& painter, int id, int x, int y, int size)
{
    const qreal ratio = painter.device() ? painter.device()->devicePixelRatioF() : 1.0;
    const QPixmap& pixmap = drawing(id, qRound(size * ratio));
    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(QRect(x, y, size, size), pixmap);
    painter.restore();
}
