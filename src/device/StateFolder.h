// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <optional>
#include <string>

// Where the program keeps registry.db and objectstore.db, and where it finds its shipped files.
namespace StateFolder {

// The state folder: `chosen` if given, else $XDG_DATA_HOME/wanderkit, else ~/.local/share/wanderkit.
std::filesystem::path locate(const std::optional<std::filesystem::path>& chosen);
// Creates the folder (mode 0700) and checks that files can be written in it; on failure returns false
// with `error` naming the folder and the reason.
[[nodiscard]] bool prepare(const std::filesystem::path& folder, std::string& error);
// The device root: `chosen` if given, else share/wanderkit/device beside the program's bin/ folder.
std::filesystem::path locateDeviceRoot(const std::optional<std::filesystem::path>& chosen);

} // namespace StateFolder
