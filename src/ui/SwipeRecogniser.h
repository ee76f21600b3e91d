// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointF>

// Tells a tap from a horizontal swipe in one press-move-release run of a finger or the mouse.
// A swipe is reported once, as soon as the pointer has travelled far enough sideways; a release that
// never left the press point's neighbourhood is a tap.
class SwipeRecogniser final
{
public:
    // Logical pixels the pointer travels sideways before the move counts as a swipe.
    static constexpr qreal SwipeDistance = 24;
    // Logical pixels a tap may wander.
    static constexpr qreal TapSlop = 8;

    void press(QPointF at);
    // The step of a swipe recognised by this move: +1 when the finger goes left (the next item comes in
    // from the right), -1 when it goes right, 0 otherwise.
    [[nodiscard]] int move(QPointF at);
    // The step of a swipe first recognised at the release (as move()), or 0.
    [[nodiscard]] int release(QPointF at);
    // True when the run just released was a tap.
    [[nodiscard]] bool wasTap() const { return m_tap; }

private:
    QPointF m_start;
    bool m_pressed = false;
    bool m_swiped = false;
    bool m_tap = false;
};
