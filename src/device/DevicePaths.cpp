// SPDX-License-Identifier: GPL-3.0-or-later
#include "device/DevicePaths.h"

#include "text/WideText.h"

DevicePaths::DevicePaths(std::filesystem::path root)
    : m_root(std::move(root))
{ }

std::optional<std::filesystem::path> DevicePaths::hostPath(std::wstring_view devicePath) const
{
    std::filesystem::path result = m_root;
    std::size_t start = 0;
    while (start <= devicePath.size()) {
        std::size_t end = devicePath.find(L'\\', start);
        if (end == std::wstring_view::npos)
            end = devicePath.size();
        const std::wstring_view part = devicePath.substr(start, end - start);
        start = end + 1;
        if (part.empty())
            continue;
        if (part == L"." || part == L".." || part.find(L'/') != std::wstring_view::npos
            || part.find(L'\0') != std::wstring_view::npos)
            return std::nullopt;
        result /= WideToUtf8(part);
    }
    return result;
}

std::wstring DevicePaths::programFolder()
{
    return std::wstring(ProgramPath.substr(0, ProgramPath.rfind(L'\\')));
}

std::wstring DevicePaths::besideProgram(std::wstring_view backslashName)
{
    return programFolder() + std::wstring(backslashName);
}

std::wstring DevicePaths::joinedName(std::wstring_view name)
{
    return programFolder() + std::wstring(name);
}
