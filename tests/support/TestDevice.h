// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "RecordingMessageSink.h"
#include "TempDir.h"
#include "device/DevicePaths.h"
#include "store/ObjectStore.h"

#include <memory>

// A device root in a fresh temporary folder, recorded messages and an object store in memory.
struct TestDevice
{
    TempDir dir;
    DevicePaths paths {dir.path()};
    RecordingMessageSink messages;
    std::unique_ptr<ObjectStore> store = ObjectStore::openInMemory();
};
