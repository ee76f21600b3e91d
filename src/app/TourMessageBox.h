// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/MessageBox.h"

// The message boxes of a tour, which nobody is there to answer: each is printed on standard error and
// answered as its Escape key would (OK, or No to a question), so the tour goes on and changes nothing.
class TourMessageBox final : public MessageBox
{
public:
    QMessageBox::StandardButton ask(QWidget* parent, const Request& request) override;
};
