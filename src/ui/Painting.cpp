// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Painting.h"

#include "text/StringTable.h"
#include "ui/WideString.h"

#include <QFontMetrics>
#include <QPainter>

QFont Painting::makeFont(int pixelHeight, int weight)
{
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(pixelHeight);
    font.setWeight(weight >= Bold ? QFont::Bold : QFont::Normal);
    font.setStyleStrategy(QFont::PreferAntialias);
    return font;
}

void Painting::drawGradient(QPainter& painter, int width, int height)
{
    for (int i = 1; i <= 30; ++i) {
        const int top = height * (30 - i) / 30;
        const int bottom = top + height / 30 + 1;
        painter.fillRect(QRect(0, top, width, bottom - top), QColor(84 + i, 120 + i, 150 + i));
    }
}

void Painting::drawBand(
    QPainter& painter, const QRect& band, const QColor& fill, const QString& text, const QFont& font, int indent)
{
    painter.fillRect(band, fill);
    painter.setFont(font);
    painter.setPen(White);
    // Not cut at the band's edges: a text taller than its band shows its descenders whole.
    painter.drawText(band.adjusted(indent, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextDontClip, text);
}

void Painting::drawRaisedEdge(QPainter& painter, int left, int top, int right, int bottom)
{
    const auto frame = [&painter](int l, int t, int r, int b, const QColor& light, const QColor& dark) {
        painter.fillRect(QRect(l, t, r - l, 1), light);
        painter.fillRect(QRect(l, t, 1, b - t), light);
        painter.fillRect(QRect(l, b - 1, r - l, 1), dark);
        painter.fillRect(QRect(r - 1, t, 1, b - t), dark);
    };
    frame(left, top, right, bottom, QColor(230, 230, 230), QColor(64, 64, 64));
    frame(left + 1, top + 1, right - 1, bottom - 1, QColor(255, 255, 255), QColor(128, 128, 128));
}

void Painting::drawTextAt(QPainter& painter, const QFont& font, int left, int top, const QString& text)
{
    painter.setFont(font);
    painter.drawText(left, top + QFontMetrics(font).ascent(), text);
}

QString Painting::shortenToFit(const QFontMetrics& metrics, QString text, int width)
{
    while (!text.isEmpty() && metrics.horizontalAdvance(text) >= width)
        text.chop(1);
    return text;
}

QString Painting::loadString(int id)
{
    const auto text = StringTable::Load(id);
    return ToQString(text);
}
