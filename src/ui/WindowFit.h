// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSize>

// The window scale that lets the device (the work area with the soft-key bar of `barHeight` below it)
// fill `available` keeping its aspect, upright or with the work area turned on its side, so a phone
// that rotates still shows all of it. On a landscape screen (a desktop) the scale is at most
// `desktopLimit`.
[[nodiscard]] qreal FitScale(QSize available, QSize workArea, int barHeight, qreal desktopLimit);
