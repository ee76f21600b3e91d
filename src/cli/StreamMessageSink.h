// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "device/MessageSink.h"

#include <iosfwd>

// Prints the core's messages for the user as "caption: text" lines, for the text commands.
class StreamMessageSink final : public MessageSink
{
public:
    explicit StreamMessageSink(std::ostream& out)
        : m_out(out)
    { }
    void showMessage(std::wstring_view text, std::wstring_view caption) override;

private:
    std::ostream& m_out;
};
