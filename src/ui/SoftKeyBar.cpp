// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/SoftKeyBar.h"

#include "ui/Painting.h"
#include "ui/WideString.h"

#include <QMenu>
#include <QMouseEvent>
#include <QPainter>

SoftKeyBar::SoftKeyBar(const MenuBarLayout& layout, QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("softKeyBar"));
    setFocusPolicy(Qt::NoFocus);
    setUpKey(0, layout.left);
    if (layout.right)
        setUpKey(1, *layout.right);
}

void SoftKeyBar::setUpKey(int index, const SoftKeyLayout& layout)
{
    Key& key = m_keys[static_cast<std::size_t>(index)];
    key.present = true;
    key.text = Painting::loadString(layout.textId);
    key.command = layout.command;
    key.enabled = layout.enabled;
    if (layout.popup.empty())
        return;
    key.menu = new QMenu(this);
    key.menu->setObjectName(QStringLiteral("softKeyMenu"));
    for (const MenuItem& item : layout.popup) {
        if (item.command == 0) {
            key.menu->addSeparator();
            continue;
        }
        QAction* action = key.menu->addAction(ToQString(item.text));
        action->setData(item.command);
        connect(action, &QAction::triggered, this, [this, command = item.command] { emit commandTriggered(command); });
    }
}

QString SoftKeyBar::keyText(int key) const
{
    return m_keys[static_cast<std::size_t>(key)].text;
}

void SoftKeyBar::press(int index)
{
    const Key& key = m_keys[static_cast<std::size_t>(index)];
    if (!key.present || !key.enabled)
        return;
    if (!key.menu) {
        emit commandTriggered(key.command);
        return;
    }
    if (key.menu->isVisible()) {
        key.menu->close();
        return;
    }
    const QRect rect = keyRect(index);
    const QSize size = key.menu->sizeHint();
    const QPoint corner = index == 0 ? rect.topLeft() : rect.topRight() - QPoint(size.width(), 0);
    key.menu->popup(mapToGlobal(corner - QPoint(0, size.height())));
}

void SoftKeyBar::setKeyEnabled(int command, bool enabled)
{
    for (Key& key : m_keys) {
        if (key.present && !key.menu && key.command == command && key.enabled != enabled) {
            key.enabled = enabled;
            update();
        }
    }
}

bool SoftKeyBar::isKeyEnabled(int command) const
{
    for (const Key& key : m_keys) {
        if (key.present && !key.menu && key.command == command)
            return key.enabled;
    }
    return false;
}

QAction* SoftKeyBar::findItem(int command) const
{
    for (const Key& key : m_keys) {
        if (!key.menu)
            continue;
        for (QAction* action : key.menu->actions()) {
            if (!action->isSeparator() && action->data().toInt() == command)
                return action;
        }
    }
    return nullptr;
}

void SoftKeyBar::setItemEnabled(int command, bool enabled)
{
    if (QAction* action = findItem(command))
        action->setEnabled(enabled);
}

void SoftKeyBar::setItemChecked(int command, bool checked)
{
    if (QAction* action = findItem(command)) {
        action->setCheckable(true);
        action->setChecked(checked);
    }
}

bool SoftKeyBar::isItemEnabled(int command) const
{
    const QAction* action = findItem(command);
    return action && action->isEnabled();
}

bool SoftKeyBar::isItemChecked(int command) const
{
    const QAction* action = findItem(command);
    return action && action->isChecked();
}

void SoftKeyBar::chooseItem(int command)
{
    if (QAction* action = findItem(command); action && action->isEnabled())
        action->trigger();
}

QMenu* SoftKeyBar::popup() const
{
    return m_keys[1].menu ? m_keys[1].menu : m_keys[0].menu;
}

QSize SoftKeyBar::sizeHint() const
{
    return {240, BarHeight};
}

QRect SoftKeyBar::keyRect(int index) const
{
    const int half = width() / 2;
    return index == 0 ? QRect(0, 0, half, height()) : QRect(half, 0, width() - half, height());
}

void SoftKeyBar::mousePressEvent(QMouseEvent* event)
{
    press(keyRect(0).contains(event->position().toPoint()) ? 0 : 1);
}

void SoftKeyBar::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QLinearGradient fill(0, 0, 0, height());
    fill.setColorAt(0, QColor(38, 72, 110));
    fill.setColorAt(1, QColor(18, 40, 66));
    painter.fillRect(rect(), fill);
    painter.setPen(QColor(90, 130, 170));
    painter.drawLine(0, 0, width(), 0);
    painter.drawLine(width() / 2, 5, width() / 2, height() - 5);
    painter.setFont(Painting::makeFont(15, Painting::Bold));
    for (int i = 0; i < 2; ++i) {
        const Key& key = m_keys[static_cast<std::size_t>(i)];
        if (!key.present)
            continue;
        painter.setPen(key.enabled ? QColor(255, 255, 255) : QColor(120, 140, 160));
        const QString text = key.menu ? key.text + QStringLiteral(" \u25B4") : key.text;
        painter.drawText(
            keyRect(i).adjusted(8, 0, -8, 0), (i == 0 ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter, text);
    }
}
