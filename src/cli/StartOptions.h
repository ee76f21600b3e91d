// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "time/SystemTime.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

// What the command line asked for. Options may stand before or after a command; the words after
// the command that are not options of the program belong to the command.
struct StartOptions
{
    bool help = false;
    bool version = false;
    int width = 240; // work area, logical pixels
    int height = 268;
    int scale = 2;
    std::optional<std::filesystem::path> stateDir;
    std::optional<std::filesystem::path> deviceRoot;
    std::optional<SystemTime> now;
    std::optional<std::filesystem::path> tourDir;
    bool exitAfterFirstPaint = false;
    std::string command; // empty: start the program's window
    std::vector<std::string> commandArgs;

    // Parses argv; on a usage error returns nothing and sets `error`.
    static std::optional<StartOptions> parse(const std::vector<std::string>& args, std::string& error);
    static std::string usage();
};
