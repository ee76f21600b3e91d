// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRect>
#include <QSize>

#include <functional>

// What the converter-style screens (Measurements, Clothing sizes, Dialing codes) share in their layout:
// list boxes 6 pixels from the left edge and 11 from the right, 24 high; texts 5 pixels from the left.
namespace ConverterLayout {

inline constexpr int TextLeft = 5;

// A list box with its top at `top` on a work area `width` wide.
inline QRect listBox(int top, int width)
{
    return {6, top, width - 17, 24};
}

// The same list box on whatever work area the screen has, for Screen::place.
inline std::function<QRect(QSize)> listBoxAt(int top)
{
    return [top](QSize area) { return listBox(top, area.width()); };
}

} // namespace ConverterLayout
