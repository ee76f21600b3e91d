// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/SwipeRecogniser.h"

#include <QStringList>
#include <QWidget>

// A one-line list with stepping: the handheld's list box and up-down pair. Left/Right step it
// (Up/Down too when it is vertical). Each step first reports its delta, then moves the selection
// (wrapping when asked). A letter jumps to the next item starting with it, Page Up/Down ten items, and
// a jump reports a step of 0.
// A tap on an arrow steps as its key does; a sideways swipe over the spinner steps it too (the finger
// going left is Right). Hidden spinners are only there to catch the keys.
class Spinner final : public QWidget
{
    Q_OBJECT

public:
    enum class Orientation { Horizontal, Vertical };
    static constexpr int ButtonWidth = 25;

    explicit Spinner(QWidget* parent = nullptr, Orientation orientation = Orientation::Horizontal);

    void addItem(const QString& text);
    void setItems(const QStringList& items);
    void clear();
    int count() const { return static_cast<int>(m_items.size()); }
    QString itemText(int index) const;
    const QStringList& items() const { return m_items; }

    // -1 when nothing is selected; an index beyond the list selects nothing.
    int currentIndex() const { return m_current; }
    QString currentText() const { return itemText(m_current); }
    void setCurrentIndex(int index);

    void setWrapping(bool wrapping) { m_wrapping = wrapping; }
    // A step as the user makes it: reports the delta, then moves the selection.
    void step(int delta);

    // Placed where no one sees it: at (x, y) with size 0 x 0, still taking the focus and the keys.
    void hideAt(int x, int y);

    QSize sizeHint() const override;

signals:
    void deltaRequested(int delta);
    void currentChanged(int index);
    // A tap on the box, away from the arrows.
    void boxTapped();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    // Mouse and touch: arrows pressed, swipes and taps on the box.
    bool event(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    // A letter selects the next item starting with it, then reports a step of 0: the screen repaints
    // as after a step, without arrow feedback.
    void jumpToLetter(QChar letter);
    // Selects `index`, then reports a step of 0.
    void jumpTo(int index);
    void select(int index);
    // A press takes the focus; on an arrow it steps as the arrow's key does, and starts no swipe.
    void pressAt(QPointF at);

    QStringList m_items;
    int m_current = -1;
    bool m_wrapping = false;
    Orientation m_orientation;
    SwipeRecogniser m_swipe;
};
