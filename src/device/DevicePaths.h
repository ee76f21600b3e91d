// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

// Maps handheld paths ("\cities.lst", "\weatcs\France") onto the device root folder of the host.
// Nothing outside the root is reachable: ".." and "." components are refused.
class DevicePaths
{
public:
    // The program's own path on the device; every "beside the program" rule starts from it.
    static constexpr std::wstring_view ProgramPath = L"\\Wanderkit.exe";

    explicit DevicePaths(std::filesystem::path root);

    const std::filesystem::path& root() const { return m_root; }

    // The host path of a handheld path, or nothing when it would leave the root.
    std::optional<std::filesystem::path> hostPath(std::wstring_view devicePath) const;

    // The program's folder, cut at the last backslash with the backslash removed ("" on the device).
    static std::wstring programFolder();
    // A file beside the program: the folder followed by a name that starts with "\".
    static std::wstring besideProgram(std::wstring_view backslashName);
    // A name joined directly to the program's folder, with no separator ("back.jpg" and the like).
    static std::wstring joinedName(std::wstring_view name);

private:
    std::filesystem::path m_root;
};
