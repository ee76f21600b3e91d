// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPaintEvent>
#include <QWidget>

// Counts a widget's repaints and collects the areas they cover, as the screen shows them.
class PaintLog final : public QObject
{
public:
    explicit PaintLog(QWidget& widget) { widget.installEventFilter(this); }

    int count = 0;
    QRect last; // the last repaint's area
    QRegion region; // every repaint's area

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            ++count, last = static_cast<QPaintEvent*>(event)->rect(),
                     region += static_cast<QPaintEvent*>(event)->region();
        return false;
    }
};
