// SPDX-License-Identifier: GPL-3.0-or-later
#include "device/DevicePaths.h"

#include <gtest/gtest.h>

#include <tuple>

TEST(DevicePaths, MapsHandheldPathsIntoTheRoot)
{
    const DevicePaths paths("/root/device");
    // The host path, or nullptr where the path is refused.
    const std::tuple<std::wstring_view, const char*> cases[] = {{L"\\cities.lst", "/root/device/cities.lst"},
        {L"\\weatcs\\United Kingdom", "/root/device/weatcs/United Kingdom"}, {L"back.jpg", "/root/device/back.jpg"},
        {L"\\wiconset\\\\sun.bmp", "/root/device/wiconset/sun.bmp"}, {L"\\", "/root/device"},
        {L"\\..\\etc\\passwd", nullptr}, {L"\\weatcs\\..\\..\\x", nullptr}, {L"\\.\\cities.lst", nullptr},
        {L"\\a/b", nullptr}};
    for (const auto& [device, host] : cases) {
        const auto mapped = paths.hostPath(device);
        if (host == nullptr)
            EXPECT_FALSE(mapped.has_value()) << std::string(device.begin(), device.end());
        else
            EXPECT_EQ(mapped, std::filesystem::path(host)) << std::string(device.begin(), device.end());
    }
}
