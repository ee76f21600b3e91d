// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/StreamMessageSink.h"

#include "text/WideText.h"

#include <ostream>

void StreamMessageSink::showMessage(std::wstring_view text, std::wstring_view caption)
{
    m_out << WideToUtf8(caption) << ": " << WideToUtf8(text) << '\n';
}
