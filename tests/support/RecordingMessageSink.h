// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "device/MessageSink.h"

#include <string>
#include <vector>

// Keeps every message instead of showing it.
class RecordingMessageSink final : public MessageSink
{
public:
    struct Message
    {
        std::wstring text;
        std::wstring caption;
        bool operator==(const Message&) const = default;
    };

    void showMessage(std::wstring_view text, std::wstring_view caption) override
    {
        messages.push_back({std::wstring(text), std::wstring(caption)});
    }

    std::vector<Message> messages;
};
