// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandFixture.h"

#include "device/SystemDeviceClock.h"

DeviceOptions CommandFixture::options(const char* at) const
{
    DeviceOptions options;
    options.stateDir = state.path();
    options.deviceRoot = device.path();
    if (const char* time = at ? at : now)
        options.now = SystemDeviceClock::parseLocalTime(time);
    return options;
}
