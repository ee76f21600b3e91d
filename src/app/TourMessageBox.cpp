// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/TourMessageBox.h"

#include <iostream>

QMessageBox::StandardButton TourMessageBox::ask(QWidget*, const Request& request)
{
    std::cerr << "wanderkit: " << request.text.toStdString() << '\n';
    return request.buttons.testFlag(QMessageBox::No) ? QMessageBox::No : QMessageBox::Ok;
}
