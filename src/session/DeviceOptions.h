// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "time/SystemTime.h"

#include <filesystem>
#include <optional>

// Where the device is: the state folder, the device root and the clock's starting time. Each unset
// field takes its default (the user's state folder, the installed device root, the system clock).
struct DeviceOptions
{
    std::optional<std::filesystem::path> stateDir;
    std::optional<std::filesystem::path> deviceRoot;
    std::optional<SystemTime> now;
};
