// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QFont>
#include <QRect>
#include <QString>

#include <optional>

class QPainter;

// The band across the top of a screen, filled with its colour and carrying the screen's title in white:
// 5 pixels from the left and centred vertically, or with its text cell's top-left corner at a given
// point. Screens lay it out with the work area's width and paint it first.
class TitleBand
{
public:
    static constexpr int Height = 25;

    // `titleId` is the title's string id; the font defaults to the titles' bold 24-pixel Arial.
    TitleBand(const QColor& fill, int titleId);
    TitleBand(const QColor& fill, int titleId, const QFont& font);

    // Draws the title with its text cell's top-left corner at `origin` instead of centred.
    void setTextOrigin(const QPoint& origin) { m_origin = origin; }
    void layout(int width) { m_rect = QRect(0, 0, width, Height); }
    const QRect& rect() const { return m_rect; }
    const QFont& font() const { return m_font; }
    void paint(QPainter& painter) const;

private:
    QColor m_fill;
    int m_titleId;
    QFont m_font;
    QRect m_rect;
    std::optional<QPoint> m_origin;
};
