// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "device/DevicePaths.h"

#include <optional>
#include <string>
#include <string_view>

// The bytes of a data file given by its handheld path ("\cities.lst"); nothing when the path leaves the
// device root or the file is not a readable regular file.
std::optional<std::string> ReadDeviceFile(const DevicePaths& paths, std::wstring_view devicePath);
