// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "time/SystemTime.h"

#include <QFont>
#include <QPoint>
#include <QRect>
#include <QString>

#include <array>

class QPainter;

// What one clock of the World Clocks screen shows.
struct ClockView
{
    QString name;
    QString time; // as drawn: twelve-hour form already applied
    QString suffix; // "AM"/"PM", empty in 24-hour form
    QString date;
    bool daylightNow = false;
    bool favourite = false;
    SystemTime hands; // the hour and minute the hands point at (and the second, with a second hand)
    bool secondHand = false;
};

// The fonts of the World Clocks screen.
struct ClockFonts
{
    QFont big; // the home time, 34 bold
    QFont normal; // the title and the cities' times, 23 bold
    QFont name; // the cities' names
    QFont small; // dates and marks
};

// Where one clock is drawn, and how: the home clock's panel or one city's row.
class ClockCell
{
public:
    // The home clock's panel under a title band of `top` pixels: the name across the panel, in a
    // smaller size when it is long, then a dial with the time (seconds) and the date beside it.
    static ClockCell home(int top, int width, const ClockFonts& fonts);
    // Four city rows filling the space below `top`: dial, name and date on the left, the time on the right.
    // Low rows draw the name smaller; rows too low for two lines carry the date on the time's line.
    static std::array<ClockCell, 4> cityRows(int top, int width, int height, const ClockFonts& fonts);

    const QRect& area() const { return m_area; }
    const QRect& dial() const { return m_dial; }
    const QRect& weather() const { return m_weather; }
    // The name as drawn: in a smaller size, then shortened, until it fits beside the time and the date.
    QString fittedName(const ClockView& view) const;
    QFont nameFont(const ClockView& view) const;
    void paint(QPainter& painter, const ClockView& view) const;

private:
    enum class DatePlace {
        Below, // under the name, or under the time in the home panel
        BeforeTime, // on the time's line, just before it
    };

    explicit ClockCell(const ClockFonts& fonts);
    int timeLeft(const ClockView& view) const;
    int dateLeft(const ClockView& view) const;
    int nameRight(const ClockView& view) const;
    QRect timeBox(const ClockView& view) const;
    void paintTime(QPainter& painter, const ClockView& view) const;
    void paintDate(QPainter& painter, const ClockView& view) const;
    void paintWeatherIcon(QPainter& painter, bool favourite) const;

    const ClockFonts* m_fonts;
    QRect m_area;
    QRect m_dial;
    QRect m_weather;
    QPoint m_name;
    const QFont* m_nameFont = nullptr;
    int m_smallestNameSize = 0; // a long name is drawn smaller down to this pixel size, then shortened
    QPoint m_time; // top-left of the time text, or its top-right end when `m_timeRightAligned`
    bool m_timeRightAligned = false;
    const QFont* m_timeFont = nullptr;
    QPoint m_date;
    DatePlace m_datePlace = DatePlace::Below;
    bool m_separatorAbove = false;
};
