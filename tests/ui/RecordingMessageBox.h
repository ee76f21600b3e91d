// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/MessageBox.h"

#include <vector>

// Message boxes a test's screens showed, each answered with `answer` instead of being shown.
class RecordingMessageBox final : public MessageBox
{
public:
    QMessageBox::StandardButton ask(QWidget*, const Request& request) override
    {
        shown.push_back(request);
        return answer;
    }

    std::vector<Request> shown;
    QMessageBox::StandardButton answer = QMessageBox::Ok;
};
