// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "device/MessageSink.h"

class MessageBox;
class QWidget;

// Shows the core's messages as message boxes over the device window.
class QtMessageSink final : public MessageSink
{
public:
    explicit QtMessageSink(MessageBox& boxes)
        : m_boxes(boxes)
    { }
    void setParentWidget(QWidget* parent) { m_parent = parent; }
    void showMessage(std::wstring_view text, std::wstring_view caption) override;

private:
    MessageBox& m_boxes;
    QWidget* m_parent = nullptr;
};
