// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMessageBox>
#include <QString>

// How screens show a message box. The program shows real boxes (QtMessageBox); tests answer them. Screens
// reach it through their environment, never through a global, so each test has its own.
class MessageBox
{
public:
    struct Request
    {
        QString text;
        QString caption;
        QMessageBox::StandardButtons buttons;
        QMessageBox::Icon icon;
    };

    virtual ~MessageBox() = default;

    // Shows a modal box over `parent` and returns the button pressed.
    virtual QMessageBox::StandardButton ask(QWidget* parent, const Request& request) = 0;

    QMessageBox::StandardButton show(QWidget* parent, const QString& text, const QString& caption,
        QMessageBox::StandardButtons buttons = QMessageBox::Ok, QMessageBox::Icon icon = QMessageBox::NoIcon)
    {
        return ask(parent, {text, caption, buttons, icon});
    }
};
