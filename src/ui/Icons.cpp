// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Icons.h"

#include <QHash>
#include <QPaintDevice>
#include <QPainter>
#include <QPixmap>

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
        it = drawings.insert(key, QPixmap(QStringLiteral(":/icons/%1-%2.png").arg(id).arg(drawn)));
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
