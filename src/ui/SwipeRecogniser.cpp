// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/SwipeRecogniser.h"

#include <QMouseEvent>
#include <QtMath>

SwipeRecogniser::Reading SwipeRecogniser::read(const QEvent& event)
{
    const QEvent::Type type = event.type();
    Reading reading;
    reading.mouse = type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick || type == QEvent::MouseMove
        || type == QEvent::MouseButtonRelease;
    if (!reading.mouse)
        return reading;
    reading.at = static_cast<const QMouseEvent&>(event).position();
    if (type == QEvent::MouseMove) {
        reading.step = move(reading.at);
    } else if (type == QEvent::MouseButtonRelease) {
        reading.step = release(reading.at);
        reading.tap = m_tap;
    } else {
        press(reading.at);
        reading.pressed = true;
    }
    return reading;
}

void SwipeRecogniser::press(QPointF at)
{
    m_start = at;
    m_pressed = true;
    m_swiped = false;
    m_tap = false;
}

int SwipeRecogniser::move(QPointF at)
{
    if (!m_pressed || m_swiped)
        return 0;
    const QPointF travel = at - m_start;
    // Mostly sideways: a slanted drag up or down is no swipe.
    if (qAbs(travel.x()) < SwipeDistance || qAbs(travel.x()) < 2 * qAbs(travel.y()))
        return 0;
    m_swiped = true;
    return travel.x() < 0 ? 1 : -1;
}

int SwipeRecogniser::release(QPointF at)
{
    m_tap = false;
    if (!m_pressed)
        return 0;
    const int step = move(at);
    const QPointF travel = at - m_start;
    m_tap = !m_swiped && qAbs(travel.x()) <= TapSlop && qAbs(travel.y()) <= TapSlop;
    m_pressed = false;
    return step;
}
