// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMessageBox>
#include <QString>

#include <functional>

// Every message box of the program goes through here, so that tests can answer them.
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
    using Interceptor = std::function<QMessageBox::StandardButton(const Request&)>;

    // Shows a modal message box over `parent` and returns the button pressed.
    static QMessageBox::StandardButton show(QWidget* parent, const QString& text, const QString& caption,
        QMessageBox::StandardButtons buttons = QMessageBox::Ok, QMessageBox::Icon icon = QMessageBox::NoIcon);
    // While set, boxes are not shown: the interceptor sees each request and answers it.
    static void setInterceptor(Interceptor interceptor);
};
