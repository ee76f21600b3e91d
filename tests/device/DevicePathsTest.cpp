// SPDX-License-Identifier: GPL-3.0-or-later
#include "device/DevicePaths.h"

#include <gtest/gtest.h>

TEST(DevicePaths, MapsHandheldPathsIntoTheRoot)
{
    const DevicePaths paths("/root/device");
    struct Case
    {
        std::wstring_view device;
        const char* host; // nullptr: refused
    };
    const Case cases[] = {
        {L"\\cities.lst", "/root/device/cities.lst"},
        {L"\\weatcs\\United Kingdom", "/root/device/weatcs/United Kingdom"},
        {L"back.jpg", "/root/device/back.jpg"},
        {L"\\wiconset\\\\sun.bmp", "/root/device/wiconset/sun.bmp"},
        {L"\\", "/root/device"},
        {L"\\..\\etc\\passwd", nullptr},
        {L"\\weatcs\\..\\..\\x", nullptr},
        {L"\\.\\cities.lst", nullptr},
        {L"\\a/b", nullptr},
    };
    for (const Case& c : cases) {
        const auto host = paths.hostPath(c.device);
        if (c.host == nullptr)
            EXPECT_FALSE(host.has_value()) << std::string(c.device.begin(), c.device.end());
        else
            EXPECT_EQ(host, std::filesystem::path(c.host)) << std::string(c.device.begin(), c.device.end());
    }
}
