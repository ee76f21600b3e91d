// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <optional>
#include <string>

// Where the program keeps registry.db and objectstore.db, and where it finds its shipped files.
namespace StateFolder {

// The state folder: `chosen` if given, else $XDG_DATA_HOME/wanderkit, else ~/.local/share/wanderkit.
std::filesystem::path locate(const std::optional<std::filesystem::path>& chosen);
// Creates the folder (mode 0700) and checks that it is private and that files can be written in it; on
// failure returns false with `error` naming the folder and the reason. A folder (or a symbolic link to
// one) that belongs to another user is refused: the state would be written where someone else decides.
[[nodiscard]] bool prepare(const std::filesystem::path& folder, std::string& error);
// Why `file` cannot be a state file before anything opens it: it, or the -wal, -shm or -journal file
// beside it, is a symbolic link, a folder, a named pipe or another non-regular file, or belongs to another
// user. Empty when each is absent or a regular file of the user's.
[[nodiscard]] std::string unusableFile(const std::filesystem::path& file);
// Why opening the state file `file` failed, as a sentence naming the file at fault: its kind, a lock
// held by another program, or the system's reason.
[[nodiscard]] std::string openFailure(const std::filesystem::path& file);
// The device root: `chosen` if given, else share/wanderkit/device beside the program's bin/ folder.
std::filesystem::path locateDeviceRoot(const std::optional<std::filesystem::path>& chosen);

} // namespace StateFolder
