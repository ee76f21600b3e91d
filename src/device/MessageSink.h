// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

// Where the core reports what the user must be told (a missing data file, a state file set aside).
// The user interface shows a message box; the command line prints to standard error.
class MessageSink
{
public:
    virtual ~MessageSink() = default;

    // An information message with an OK button.
    virtual void showMessage(std::wstring_view text, std::wstring_view caption) = 0;
};
