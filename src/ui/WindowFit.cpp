// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/WindowFit.h"

#include <algorithm>

namespace {

qreal fitting(QSize available, QSize device)
{
    return std::min(qreal(available.width()) / device.width(), qreal(available.height()) / device.height());
}

} // namespace

qreal FitScale(QSize available, QSize workArea, int barHeight, qreal desktopLimit)
{
    if (available.isEmpty() || workArea.isEmpty())
        return desktopLimit;
    const QSize bar(0, barHeight);
    const qreal scale = std::min(fitting(available, workArea + bar), fitting(available, workArea.transposed() + bar));
    return available.width() > available.height() ? std::min(scale, desktopLimit) : scale;
}
