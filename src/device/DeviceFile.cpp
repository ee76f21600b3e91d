// SPDX-License-Identifier: GPL-3.0-or-later
#include "device/DeviceFile.h"

#include <fstream>
#include <iterator>

std::optional<std::string> ReadDeviceFile(const DevicePaths& paths, std::wstring_view devicePath)
{
    const auto file = paths.hostPath(devicePath);
    std::error_code error;
    if (!file || !std::filesystem::is_regular_file(*file, error))
        return std::nullopt;
    std::ifstream in(*file, std::ios::binary);
    if (!in)
        return std::nullopt;
    std::string bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    if (in.bad())
        return std::nullopt;
    return bytes;
}
