// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

// A fresh folder under the system's temporary folder, removed with everything in it at the end.
class TempDir
{
public:
    TempDir();
    ~TempDir();
    TempDir(const TempDir&) = delete;
    TempDir& operator=(const TempDir&) = delete;

    const std::filesystem::path& path() const { return m_path; }
    // Writes `bytes` to a file below the folder (parent folders created) and returns its path.
    std::filesystem::path write(const std::filesystem::path& relative, std::string_view bytes) const;
    // The bytes of any file; empty when it cannot be read.
    static std::string read(const std::filesystem::path& file);

private:
    std::filesystem::path m_path;
};
