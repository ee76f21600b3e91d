// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "session/DeviceOptions.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

// What the program's command line asked for: the window's options, the device's, and a text command.
// Options may stand before or after a command; the words after the command that are not options of
// the program belong to the command.
struct StartOptions
{
    bool help = false;
    bool version = false;
    int width = 240; // work area, logical pixels
    int height = 268;
    int scale = 2;
    DeviceOptions device; // state folder, device root, --now
    std::optional<std::filesystem::path> tourDir;
    bool exitAfterFirstPaint = false;
    std::string command; // empty: start the program's window
    std::vector<std::string> commandArgs;

    // Parses argv; on a usage error returns nothing and sets `error`.
    [[nodiscard]] static std::optional<StartOptions> parse(const std::vector<std::string>& args, std::string& error);
    static std::string usage();
};
