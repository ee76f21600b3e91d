// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QPainter;

// The program's icons by resource id: 108 the service icon, 109 the right arrow, 110 the left arrow.
// Each is drawn for 16, 24 and 32 pixels; the drawing that fits the target best is used.
namespace Icons {

constexpr int Service = 108;
constexpr int RightArrow = 109;
constexpr int LeftArrow = 110;

// Draws icon `id` as a size x size square with its top-left corner at (x, y).
void draw(QPainter& painter, int id, int x, int y, int size);

} // namespace Icons
