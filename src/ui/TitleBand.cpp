// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/TitleBand.h"

#include "ui/Painting.h"

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
    Painting::drawBand(painter, m_rect, m_fill, Painting::loadString(m_titleId), m_font);
}
