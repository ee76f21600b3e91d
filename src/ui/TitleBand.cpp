// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/TitleBand.h"

#include "ui/Painting.h"

#include <QPainter>

TitleBand::TitleBand(const QColor& fill, int titleId)
    : TitleBand(fill, titleId, Painting::makeFont(24, Painting::Bold))
{ }

TitleBand::TitleBand(const QColor& fill, int titleId, const QFont& font)
    : m_fill(fill)
    , m_titleId(titleId)
    , m_font(font)
{ }

void TitleBand::paint(QPainter& painter) const
{
    if (!m_origin) {
        Painting::drawBand(painter, m_rect, m_fill, Painting::loadString(m_titleId), m_font);
        return;
    }
    painter.fillRect(m_rect, m_fill);
    painter.setFont(m_font);
    painter.setPen(Painting::White);
    // The text is not cut at the band's edge: a 24-pixel title's descenders reach a row or two below it.
    painter.drawText(QRect(*m_origin, m_rect.bottomRight()), Qt::AlignLeft | Qt::AlignTop | Qt::TextDontClip,
        Painting::loadString(m_titleId));
}
