// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QFont>
#include <QRect>
#include <QString>

class QPainter;
class QFontMetrics;

// Drawing helpers every screen shares: fonts, the background gradient, title bands, the raised edge.
namespace Painting {

constexpr int Normal = 400;
constexpr int Bold = 700;

// Shell screens' title and information bands, and the converter screens' title band.
inline const QColor ShellBand {51, 102, 150};
inline const QColor ConverterBand {0, 178, 235};
inline const QColor White {255, 255, 255};

// "Arial" at a pixel height, weight 400 or 700, antialiased.
QFont makeFont(int pixelHeight, int weight);

// The 30-band vertical gradient over a work area: band i = 1 (bottom) to 30 (top), RGB(84+i, 120+i, 150+i).
void drawGradient(QPainter& painter, int width, int height);

// Fills a band and writes `text` in white, `indent` pixels from its left edge, centred vertically.
void drawBand(
    QPainter& painter, const QRect& band, const QColor& fill, const QString& text, const QFont& font, int indent = 5);

// A raised edge (outer and inner) on all four sides of a rectangle given as left, top, right, bottom
// with right and bottom exclusive.
void drawRaisedEdge(QPainter& painter, int left, int top, int right, int bottom);

// Writes `text` in `font` with its text cell's top-left corner at (left, top).
void drawTextAt(QPainter& painter, const QFont& font, int left, int top, const QString& text);

// Drops the last character until the text is narrower than `width`.
QString shortenToFit(const QFontMetrics& metrics, QString text, int width);

// A text of the string table.
QString loadString(int id);

} // namespace Painting
