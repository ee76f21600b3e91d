// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Spinner.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QWheelEvent>

#include <algorithm>
#include <cstdlib>

Spinner::Spinner(QWidget* parent, Orientation orientation)
    : QWidget(parent)
    , m_orientation(orientation)
{
    setObjectName(QStringLiteral("spinner"));
    setFocusPolicy(Qt::StrongFocus);
}

void Spinner::addItem(const QString& text)
{
    m_items.append(text);
    update();
}

void Spinner::setItems(const QStringList& items)
{
    m_items = items;
    m_current = -1;
    update();
}

void Spinner::clear()
{
    m_items.clear();
    m_current = -1;
    update();
}

QString Spinner::itemText(int index) const
{
    return index >= 0 && index < count() ? m_items.at(index) : QString();
}

void Spinner::setCurrentIndex(int index)
{
    m_current = index >= 0 && index < count() ? index : -1;
    update();
}

void Spinner::step(int delta)
{
    emit deltaRequested(delta);
    if (count() == 0 || delta == 0)
        return;
    int next = m_current < 0 ? 0 : m_current + delta;
    if (next < 0 || next >= count()) {
        if (!m_wrapping)
            return;
        next = ((next % count()) + count()) % count();
    }
    select(next);
}

void Spinner::select(int index)
{
    if (index == m_current)
        return;
    m_current = index;
    update();
    emit currentChanged(m_current);
}

void Spinner::jumpToLetter(QChar letter)
{
    // From the item after the current one, so repeating a letter walks through its items.
    for (int k = 1; k <= count(); ++k) {
        const int index = (std::max(m_current, -1) + k) % count();
        if (m_items.at(index).startsWith(letter, Qt::CaseInsensitive)) {
            jumpTo(index);
            return;
        }
    }
}

void Spinner::jumpTo(int index)
{
    select(index);
    emit deltaRequested(0);
}

void Spinner::hideAt(int x, int y)
{
    setGeometry(x, y, 0, 0);
}

QSize Spinner::sizeHint() const
{
    return {120, 24};
}

void Spinner::keyPressEvent(QKeyEvent* event)
{
    const bool vertical = m_orientation == Orientation::Vertical;
    switch (event->key()) {
    case Qt::Key_Left:
        step(-1);
        return;
    case Qt::Key_Right:
        step(1);
        return;
    case Qt::Key_Up:
        vertical ? step(-1) : event->ignore();
        return;
    case Qt::Key_Down:
        vertical ? step(1) : event->ignore();
        return;
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        if (count() > 0)
            jumpTo(std::clamp(m_current + (event->key() == Qt::Key_PageUp ? -10 : 10), 0, count() - 1));
        return;
    default:
        if (const QString text = event->text(); !text.isEmpty() && text.at(0).isLetterOrNumber() && count() > 0)
            jumpToLetter(text.at(0));
        // Like a focused list box, the spinner keeps the keys it does not use.
        event->accept();
    }
}

bool Spinner::event(QEvent* event)
{
    const SwipeRecogniser::Reading reading = m_swipe.read(*event);
    if (!reading.mouse)
        return QWidget::event(event);
    if (reading.pressed)
        pressAt(reading.at);
    else if (reading.step != 0)
        step(reading.step);
    else if (reading.tap)
        emit boxTapped();
    return true;
}

void Spinner::pressAt(QPointF at)
{
    setFocus(Qt::MouseFocusReason);
    const int buttonsLeft = width() - ButtonWidth;
    const int x = qRound(at.x());
    if (x >= buttonsLeft) {
        m_swipe.cancel();
        step(x < buttonsLeft + ButtonWidth / 2 ? -1 : 1);
    }
}

void Spinner::wheelEvent(QWheelEvent* event)
{
    // Each notch is one step, as that many arrow presses would make: a screen that follows the steps
    // (the weather's day) moves as far as the spinner.
    const int notches = event->angleDelta().y() / 120;
    for (int n = 0; n < std::abs(notches); ++n)
        step(notches > 0 ? -1 : 1);
    event->accept();
}

void Spinner::paintEvent(QPaintEvent*)
{
    if (width() == 0 || height() == 0)
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRect box = rect().adjusted(0, 0, -ButtonWidth, 0);
    painter.fillRect(box, Qt::white);
    painter.setPen(hasFocus() ? QColor(0, 120, 215) : QColor(120, 120, 120));
    painter.drawRect(box.adjusted(0, 0, -1, -1));
    painter.setPen(Qt::black);
    painter.setFont(font());
    painter.drawText(box.adjusted(4, 0, -2, 0), Qt::AlignLeft | Qt::AlignVCenter, currentText());

    const QRect buttons(box.right() + 1, 0, ButtonWidth, height());
    painter.fillRect(buttons, QColor(225, 232, 240));
    painter.setPen(QColor(120, 120, 120));
    painter.drawRect(buttons.adjusted(0, 0, -1, -1));
    const int mid = buttons.center().y();
    const qreal half = ButtonWidth / 2.0;
    // Two small triangles pointing back and forth: left/right, or up/down for a vertical spinner.
    const bool vertical = m_orientation == Orientation::Vertical;
    for (int side = 0; side < 2; ++side) {
        const QPointF centre(buttons.left() + half * side + half / 2, mid);
        const qreal dir = side == 0 ? -1 : 1;
        const auto at = [&](qreal along, qreal across) {
            return centre + (vertical ? QPointF(across, along) : QPointF(along, across));
        };
        QPainterPath arrow;
        arrow.moveTo(at(3 * dir, 0));
        arrow.lineTo(at(-2 * dir, -4));
        arrow.lineTo(at(-2 * dir, 4));
        arrow.closeSubpath();
        painter.fillPath(arrow, QColor(40, 60, 90));
    }
}
