// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/QtMessageSink.h"

#include "ui/MessageBox.h"

void QtMessageSink::showMessage(std::wstring_view text, std::wstring_view caption)
{
    MessageBox::show(m_parent, QString::fromWCharArray(text.data(), static_cast<qsizetype>(text.size())),
        QString::fromWCharArray(caption.data(), static_cast<qsizetype>(caption.size())));
}
