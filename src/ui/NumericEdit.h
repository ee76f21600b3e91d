// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>

// An edit box for amounts, as the converters use it: a thin border, text that scrolls sideways when it is
// longer than the box, typing limited to the characters of a number, and number input hints for
// on-screen keyboards. The screen draws its focus frame, the box grown by 2 pixels on every side, and
// repaints when focusChanged() tells it to.
class NumericEdit final : public QLineEdit
{
    Q_OBJECT

public:
    explicit NumericEdit(QWidget* parent);

    QRect focusFrame() const { return geometry().adjusted(-2, -2, 2, 2); }

signals:
    void focusChanged(bool focused);

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
};
