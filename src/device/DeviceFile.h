// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "device/DevicePaths.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

// The bytes of a data file given by its handheld path ("\cities.lst"); nothing when the path leaves the
// device root or the file is not a readable regular file.
std::optional<std::string> ReadDeviceFile(const DevicePaths& paths, std::wstring_view devicePath);

// Where a first-start load gets its file's bytes, asked only when the load needs them; nothing when the
// file is missing. Tests and fuzz targets hand over bytes directly.
using DeviceFileSource = std::function<std::optional<std::string>()>;
