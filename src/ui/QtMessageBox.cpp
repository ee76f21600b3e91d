// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/QtMessageBox.h"

QMessageBox::StandardButton QtMessageBox::ask(QWidget* parent, const Request& request)
{
    QMessageBox box(request.icon, request.caption, request.text, request.buttons, parent);
    return static_cast<QMessageBox::StandardButton>(box.exec());
}
