// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointF>

class QEvent;

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

    // What one event did to the run. Only mouse presses, moves and releases are read (a double click
    // presses again; touch reaches widgets as those).
    struct Reading
    {
        bool mouse = false; // the event was one of them; the widget takes it
        bool pressed = false; // a run starts at `at`
        int step = 0; // a swipe recognised here
        bool tap = false; // the run just released was a tap at `at`
        QPointF at;
    };
    [[nodiscard]] Reading read(const QEvent& event);
    // Forgets the run pressed last: a press the widget used for something else.
    void cancel() { m_pressed = false; }

private:
    void press(QPointF at);
    // The step of a swipe recognised by this move: +1 when the finger goes left (the next item comes in
    // from the right), -1 when it goes right, 0 otherwise.
    int move(QPointF at);
    // The step of a swipe first recognised at the release (as move()), or 0; sets whether it was a tap.
    int release(QPointF at);

    QPointF m_start;
    bool m_pressed = false;
    bool m_swiped = false;
    bool m_tap = false;
};
