// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CommandResult.h"
#include "TempDir.h"
#include "device/SystemDeviceClock.h"

#include <gtest/gtest.h>

// Commands run on a device root and a state folder in fresh temporary folders, at the local time `now`
// ("YYYY-MM-DD HH:MM:SS"; the system's time when null) unless a run gives its own. Every command loads the
// city catalogue: the device holds one city unless a test writes its own.
class CommandFixture : public ::testing::Test
{
protected:
    CommandFixture() { device.write("cities.lst", "Test cities\n1\nx;Paris;France;2.35;48.85;0;0;0;0;0;0\n"); }
    DeviceOptions options(const char* at = nullptr) const
    {
        const char* time = at ? at : now;
        return {state.path(), device.path(), time ? SystemDeviceClock::parseLocalTime(time) : std::nullopt};
    }
    CommandResult run(const std::string& command, const std::vector<std::string>& args, const char* at = nullptr) const
    {
        return CommandResult::of(command, args, options(at));
    }

    TempDir device;
    TempDir state;
    const char* now = nullptr;
};
