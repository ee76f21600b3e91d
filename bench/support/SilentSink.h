// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "device/MessageSink.h"

// Drops every message: a benchmark times the work, not the telling.
class SilentSink final : public MessageSink
{
public:
    void showMessage(std::wstring_view, std::wstring_view) override { }
};
