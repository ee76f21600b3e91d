// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "time/SystemTime.h"

#include <QRect>

class QPainter;

// Draws an analog clock dial: a light face with hour marks, and the hands in the not-XOR pen mode
// (drawing a hand twice at the same place would erase it).
namespace ClockDial {

// The face and its marks, fitted into `box` (drawn from a kept picture of the face).
void drawFace(QPainter& painter, const QRect& box);
// The hands for `time`; the second hand only when `withSeconds` is set.
void drawHands(QPainter& painter, const QRect& box, const SystemTime& time, bool withSeconds);

} // namespace ClockDial
