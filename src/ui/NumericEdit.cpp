// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/NumericEdit.h"

#include <QRegularExpressionValidator>

NumericEdit::NumericEdit(QWidget* parent)
    : QLineEdit(parent)
{
    setFrame(false);
    setStyleSheet(QStringLiteral("QLineEdit { border: 1px solid black; background: white; padding: 0 2px; }"));
    setInputMethodHints(Qt::ImhFormattedNumbersOnly);
    // Digits, signs, the decimal point and an exponent: what a number's text can hold. Text put in by the
    // program (a saved amount) is not checked, so it shows as it was stored.
    setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9+\\-.eE]*")), this));
}

void NumericEdit::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    emit focusChanged(true);
}

void NumericEdit::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    emit focusChanged(false);
}
