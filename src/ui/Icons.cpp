// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Icons.h"

#include <QHash>
#include <QIcon>
#include <QPaintDevice>
#include <QPainter>

// The icons live in a resource of this static library, which must be registered by hand.
static void registerIconResource()
{
    Q_INIT_RESOURCE(icons);
}

namespace {

const QIcon& icon(int id)
{
    static QHash<int, QIcon> icons;
    auto it = icons.find(id);
    if (it == icons.end()) {
        if (icons.isEmpty())
            registerIconResource();
        QIcon loaded;
        for (const int drawn : {16, 24, 32})
            loaded.addFile(QStringLiteral(":/icons/%1-%2.png").arg(id).arg(drawn), QSize(drawn, drawn));
        it = icons.insert(id, loaded);
    }
    return *it;
}

} // namespace

void Icons::draw(QPainter& painter, int id, int x, int y, int size)
{
    const qreal ratio = painter.device() ? painter.device()->devicePixelRatioF() : 1.0;
    const QPixmap pixmap = icon(id).pixmap(QSize(size, size), ratio);
    painter.drawPixmap(QRect(x, y, size, size), pixmap);
}
