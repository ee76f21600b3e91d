// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/MappingFile.h"

#include "device/DeviceFile.h"
#include "settings/SettingsTable.h"
#include "text/WideText.h"

namespace {

constexpr std::size_t InstallFolderBuffer = 50; // characters

// The white space of the C library's "%s" conversion.
bool isSpace(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\v' || c == '\f' || c == '\r';
}

} // namespace

std::wstring ReadInstallFolder(RegistrySettings& settings)
{
    std::wstring folder = ReadSetting(settings, Settings::InstallDir);
    return folder.size() <= InstallFolderBuffer ? folder : std::wstring();
}

std::wstring ReadMappingText(RegistrySettings& settings, const DevicePaths& paths)
{
    const auto bytes = ReadDeviceFile(paths, ReadInstallFolder(settings) + L"\\mapping.cfg");
    return bytes ? ParseMappingText(*bytes) : std::wstring();
}

std::wstring ParseMappingText(std::string_view bytes)
{
    std::wstring mapping;
    std::size_t next = 0;
    for (;;) {
        while (next < bytes.size() && isSpace(bytes[next]))
            ++next;
        const std::size_t start = next;
        while (next < bytes.size() && !isSpace(bytes[next]))
            ++next;
        const std::string_view word = bytes.substr(start, next - start);
        if (word.empty() || word.find('>') != std::string_view::npos)
            return mapping;
        mapping += Latin1ToWide(word) + L";";
    }
}
