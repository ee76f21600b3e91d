// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/worldclock/ClockCell.h"

#include "screens/worldclock/ClockDial.h"
#include "ui/Painting.h"

#include <QPainter>
#include <QPainterPath>

namespace {

constexpr int WeatherIconSize = 18;
constexpr int EdgeMargin = 6;
// The home panel: the name on a line of its own across the panel, then the dial with the time and
// the date beside it. The dial leaves room for "12:00:00 AM" at 240 pixels.
constexpr int HomeNameLine = 26;
constexpr int HomeDialSize = 52;
// City rows at least this high carry the date under the name; from RoomyRow on in the larger name font.
constexpr int TwoLineRow = 30;
constexpr int RoomyRow = 36;
// The home name steps down to this pixel size before it is shortened; the cities' names to the dates' size.
constexpr int SmallestHomeNameSize = 12;
const QColor DateColour(220, 232, 245);
const QColor DaylightMark(255, 200, 60);

int advance(const QFont& font, const QString& text)
{
    return QFontMetrics(font).horizontalAdvance(text);
}

// The AM/PM mark's width with its 3-pixel gap after the time; nothing in 24-hour form.
int suffixWidth(const QFont& small, const ClockView& view)
{
    return view.suffix.isEmpty() ? 0 : advance(small, view.suffix) + 3;
}

// White text with a soft shadow, so it reads on the background picture; `topLeft` is the text's top.
void drawShadowedText(
    QPainter& painter, const QFont& font, const QPoint& topLeft, const QString& text, const QColor& colour)
{
    painter.setFont(font);
    const int baseline = topLeft.y() + QFontMetrics(font).ascent();
    painter.setPen(QColor(0, 0, 0, 110));
    painter.drawText(topLeft.x() + 1, baseline + 1, text);
    painter.setPen(colour);
    painter.drawText(topLeft.x(), baseline, text);
}

} // namespace

ClockCell::ClockCell(const ClockFonts& fonts)
    : m_fonts(&fonts)
{ }

ClockCell ClockCell::home(int top, int width, const ClockFonts& fonts)
{
    ClockCell home(fonts);
    home.m_name = QPoint(EdgeMargin, top + 1);
    home.m_nameFont = &fonts.normal;
    home.m_smallestNameSize = SmallestHomeNameSize;
    home.m_time = QPoint(EdgeMargin + HomeDialSize + 10, top + 1 + HomeNameLine);
    home.m_timeFont = &fonts.big;
    home.m_date = QPoint(home.m_time.x(), home.m_time.y() + QFontMetrics(fonts.big).height());
    home.m_dial = QRect(EdgeMargin, home.m_time.y() + 2, HomeDialSize, HomeDialSize);
    home.m_weather = QRect(width - WeatherIconSize - EdgeMargin, home.m_date.y(), WeatherIconSize, WeatherIconSize);
    home.m_area = QRect(0, top, width, home.m_date.y() + QFontMetrics(fonts.small).height() + 2 - top);
    return home;
}

std::array<ClockCell, 4> ClockCell::cityRows(int top, int width, int height, const ClockFonts& fonts)
{
    const int rowHeight = (height - top) / 4;
    const bool twoLines = rowHeight >= TwoLineRow;
    const bool roomy = rowHeight >= RoomyRow;
    const int dateHeight = QFontMetrics(fonts.small).height();
    const auto centred
        = [rowHeight](int y, const QFont& font) { return y + (rowHeight - QFontMetrics(font).height()) / 2; };
    std::array<ClockCell, 4> rows {ClockCell(fonts), ClockCell(fonts), ClockCell(fonts), ClockCell(fonts)};
    for (std::size_t k = 0; k < rows.size(); ++k) {
        ClockCell& row = rows[k];
        const int y = top + static_cast<int>(k) * rowHeight;
        const int dialSize = std::min(rowHeight - 4, 36);
        row.m_area = QRect(0, y, width, rowHeight);
        row.m_dial = QRect(5, y + (rowHeight - dialSize) / 2, dialSize, dialSize);
        row.m_weather = QRect(
            width - WeatherIconSize - 5, y + (rowHeight - WeatherIconSize) / 2, WeatherIconSize, WeatherIconSize);
        row.m_nameFont = twoLines && !roomy ? &fonts.small : &fonts.name;
        row.m_smallestNameSize = fonts.small.pixelSize();
        row.m_name = QPoint(row.m_dial.right() + 8, twoLines ? y + (roomy ? 2 : 0) : centred(y, fonts.name));
        row.m_timeFont = &fonts.normal;
        row.m_timeRightAligned = true;
        row.m_time = QPoint(row.m_weather.left() - 7, centred(y, fonts.normal));
        row.m_datePlace = twoLines ? DatePlace::Below : DatePlace::BeforeTime;
        row.m_date = twoLines ? QPoint(row.m_name.x(), roomy ? y + 22 : y + rowHeight - dateHeight)
                              : QPoint(0, centred(y, fonts.small));
        row.m_separatorAbove = true;
    }
    return rows;
}

int ClockCell::timeLeft(const ClockView& view) const
{
    if (!m_timeRightAligned)
        return m_time.x();
    return m_time.x() - advance(*m_timeFont, view.time) - suffixWidth(m_fonts->small, view);
}

int ClockCell::dateLeft(const ClockView& view) const
{
    switch (m_datePlace) {
    case DatePlace::BeforeTime:
        return timeLeft(view) - 8 - advance(m_fonts->small, view.date);
    case DatePlace::Below:
        break;
    }
    return m_date.x();
}

int ClockCell::nameRight(const ClockView& view) const
{
    int right = m_timeRightAligned ? timeLeft(view) - 6 : m_area.right() + 1 - EdgeMargin;
    if (m_datePlace != DatePlace::Below)
        right = std::min(right, dateLeft(view) - 6);
    return right;
}

QFont ClockCell::nameFont(const ClockView& view) const
{
    // A long name steps down in size before it loses letters.
    QFont font = *m_nameFont;
    const int room = nameRight(view) - m_name.x();
    while (font.pixelSize() > m_smallestNameSize && advance(font, view.name) >= room)
        font.setPixelSize(font.pixelSize() - 1);
    return font;
}

QString ClockCell::fittedName(const ClockView& view) const
{
    return Painting::shortenToFit(QFontMetrics(nameFont(view)), view.name, nameRight(view) - m_name.x());
}

void ClockCell::paint(QPainter& painter, const ClockView& view) const
{
    if (m_separatorAbove)
        painter.fillRect(QRect(m_area.left() + 4, m_area.top() - 1, m_area.width() - 8, 1), QColor(255, 255, 255, 40));
    ClockDial::drawFace(painter, m_dial);
    ClockDial::drawHands(painter, m_dial, view.hands, view.secondHand);
    paintWeatherIcon(painter, view.favourite);
    drawShadowedText(painter, nameFont(view), m_name, fittedName(view), Painting::White);
    paintTime(painter, view);
    paintDate(painter, view);
}

// The time, then its AM/PM mark three pixels to its right, on the time's baseline.
void ClockCell::paintTime(QPainter& painter, const ClockView& view) const
{
    const int left = timeLeft(view);
    drawShadowedText(painter, *m_timeFont, QPoint(left, m_time.y()), view.time, Painting::White);
    if (view.suffix.isEmpty())
        return;
    const int top = m_time.y() + QFontMetrics(*m_timeFont).ascent() - QFontMetrics(m_fonts->small).ascent();
    drawShadowedText(
        painter, m_fonts->small, QPoint(left + advance(*m_timeFont, view.time) + 3, top), view.suffix, Painting::White);
}

// The time's text box, its AM/PM mark included.
QRect ClockCell::timeBox(const ClockView& view) const
{
    const QFontMetrics metrics(*m_timeFont);
    return QRect(timeLeft(view), m_time.y(), metrics.horizontalAdvance(view.time) + suffixWidth(m_fonts->small, view),
        metrics.height());
}

// The date; a city whose daylight saving runs now carries a "DST" mark after it, or a dot on its dial
// when the date shares a line with the time or the mark would run into a twelve-hour time.
void ClockCell::paintDate(QPainter& painter, const ClockView& view) const
{
    const QPoint date(dateLeft(view), m_date.y());
    drawShadowedText(painter, m_fonts->small, date, view.date, DateColour);
    if (!view.daylightNow)
        return;
    const QString markText = QStringLiteral("DST");
    const QPoint mark = date + QPoint(advance(m_fonts->small, view.date) + 8, 0);
    const QRect markBox(mark, QSize(advance(m_fonts->small, markText), QFontMetrics(m_fonts->small).height()));
    if (m_datePlace == DatePlace::Below && !markBox.adjusted(0, 0, 4, 0).intersects(timeBox(view))) {
        drawShadowedText(painter, m_fonts->small, mark, markText, DaylightMark);
        return;
    }
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QColor(60, 40, 0));
    painter.setBrush(DaylightMark);
    painter.drawEllipse(QRectF(m_dial.right() - 7, m_dial.top(), 8, 8));
    painter.restore();
}

// A small sun behind a cloud; faded while the city is not a weather favourite yet.
void ClockCell::paintWeatherIcon(QPainter& painter, bool favourite) const
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const double w = m_weather.width();
    const QPointF o = m_weather.topLeft();
    const int alpha = favourite ? 255 : 150;
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 206, 46, alpha));
    painter.drawEllipse(o + QPointF(w * 0.62, w * 0.34), w * 0.24, w * 0.24);
    QPainterPath cloud;
    cloud.addEllipse(o + QPointF(w * 0.30, w * 0.62), w * 0.22, w * 0.20);
    cloud.addEllipse(o + QPointF(w * 0.50, w * 0.52), w * 0.24, w * 0.24);
    cloud.addEllipse(o + QPointF(w * 0.70, w * 0.66), w * 0.20, w * 0.17);
    cloud.addRect(QRectF(o + QPointF(w * 0.30, w * 0.62), QSizeF(w * 0.40, w * 0.21)));
    painter.setBrush(QColor(255, 255, 255, alpha));
    painter.drawPath(cloud.simplified());
    painter.restore();
}
