// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

class DevicePaths;

// The countries of the weather city lists: the names of the files in "\weatcs" beside the program, in
// name order (the order the handheld's file system gave them, as they were installed). Sub-folders are
// no countries; a missing folder gives none.
[[nodiscard]] std::vector<std::wstring> ListWeatherCountries(const DevicePaths& paths);
