// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/MenuBars.h"

#include <QWidget>

#include <array>

class QMenu;
class QAction;

// The soft-key bar under the work area: two keys, each a plain command or a popup menu.
// F1 and F2 press the keys; items and keys can be greyed, items checked.
class SoftKeyBar final : public QWidget
{
    Q_OBJECT

public:
    static constexpr int BarHeight = 26;

    explicit SoftKeyBar(const MenuBarLayout& layout, QWidget* parent = nullptr);

    void pressLeft() { press(0); }
    void pressRight() { press(1); }
    QString keyText(int key) const;

    // A plain key by its command (the "Services" key and the like).
    void setKeyEnabled(int command, bool enabled);
    bool isKeyEnabled(int command) const;
    // A popup item by its command.
    void setItemEnabled(int command, bool enabled);
    void setItemChecked(int command, bool checked);
    bool isItemEnabled(int command) const;
    bool isItemChecked(int command) const;
    // Runs an item's command as if it were chosen; does nothing when it is greyed or absent.
    void chooseItem(int command);
    QMenu* popup() const;

    QSize sizeHint() const override;

signals:
    void commandTriggered(int command);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    struct Key
    {
        bool present = false;
        QString text;
        int command = 0;
        bool enabled = true;
        QMenu* menu = nullptr;
    };

    void setUpKey(int index, const SoftKeyLayout& layout);
    void press(int index);
    QRect keyRect(int index) const;
    QAction* findItem(int command) const;

    std::array<Key, 2> m_keys;
};
