// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/QtMessageSink.h"

#include "ui/MessageBox.h"
#include "ui/WideString.h"

void QtMessageSink::showMessage(std::wstring_view text, std::wstring_view caption)
{
    m_boxes.show(m_parent, ToQString(text), ToQString(caption));
}
