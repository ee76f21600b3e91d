// SPDX-License-Identifier: GPL-3.0-or-later
#include "device/DevicePaths.h"
#include "device/SystemDeviceClock.h"
#include "text/WideText.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>
#include <tuple>

TEST(DevicePaths, MapsHandheldPathsIntoTheRoot)
{
    const DevicePaths paths("/root/device");
    // The host path, or nullptr where the path is refused.
    const std::tuple<std::wstring, const char*> cases[] = {{L"\\cities.lst", "/root/device/cities.lst"},
        {L"\\weatcs\\United Kingdom", "/root/device/weatcs/United Kingdom"}, {L"back.jpg", "/root/device/back.jpg"},
        {L"\\wiconset\\\\sun.bmp", "/root/device/wiconset/sun.bmp"}, {L"\\", "/root/device"},
        {L"\\weatcs\\..\\..\\x", nullptr}, {L"\\.\\cities.lst", nullptr}, {L"\\a/b", nullptr}};
    for (const auto& [device, host] : cases)
        EXPECT_EQ(paths.hostPath(device), host ? std::optional<std::filesystem::path>(host) : std::nullopt)
            << WideToUtf8(device);
}

TEST(SystemDeviceClock, ParsesValidLocalTimesAndStartsAtThem)
{
    const std::tuple<const char*, bool> cases[] = {{"2024-02-29 23:59:59", true}, {"2026-02-29 12:00:00", false},
        {"2026-01-01 24:00:00", false}, {"2026-01-01 12:00:00x", false}};
    for (const auto& [text, valid] : cases)
        EXPECT_EQ(SystemDeviceClock::parseLocalTime(text).has_value(), valid) << text;

    // It starts at the given time and knows the standard bias, the same in summer.
    const std::tuple<const char*, std::int32_t> zones[] = {{"America/New_York", 300}, {"Asia/Kolkata", -330}};
    const char* old = std::getenv("TZ");
    const std::string saved = old ? old : "";
    for (const auto& [tz, bias] : zones) {
        setenv("TZ", tz, 1);
        const SystemDeviceClock clock(*SystemDeviceClock::parseLocalTime("2026-07-14 10:20:30"));
        const SystemTime t = clock.localTime(); // its seconds run on with the machine's
        EXPECT_EQ(clock.standardBias(), bias) << tz;
        EXPECT_EQ(std::tuple(t.year, t.month, t.dayOfWeek, t.day, t.hour, t.minute), std::tuple(2026, 7, 2, 14, 10, 20))
            << tz; // a Tuesday
    }
    old ? setenv("TZ", saved.c_str(), 1) : unsetenv("TZ");
    tzset();
}
