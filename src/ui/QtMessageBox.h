// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/MessageBox.h"

// Real message boxes, shown modally over their parent.
class QtMessageBox final : public MessageBox
{
public:
    QMessageBox::StandardButton ask(QWidget* parent, const Request& request) override;
};
