// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "device/DeviceFile.h"
#include "device/DevicePaths.h"
#include "device/MessageSink.h"
#include "store/ObjectStore.h"
#include "time/SystemTime.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

// What a fuzz target's stores need: an object store in memory, messages dropped, a device root that
// holds nothing, and a fixed device time (Monday 13 July 2026, 12:34:56.789).
struct FuzzDevice
{
    // The process's one device with its object store emptied: opening a fresh store costs more than a run.
    static FuzzDevice& emptied()
    {
        static FuzzDevice device;
        SqliteConnection& connection = device.store->connection();
        connection.execute("DELETE FROM records; DELETE FROM sort_orders; DELETE FROM databases;");
        connection.noteChange();
        return device;
    }

    struct SilentMessages final : MessageSink
    {
        void showMessage(std::wstring_view, std::wstring_view) override { }
    };

    std::unique_ptr<ObjectStore> store = ObjectStore::openInMemory();
    SilentMessages messages;
    DevicePaths paths {"/nonexistent"};
    static constexpr SystemTime Now {2026, 7, 1, 13, 12, 34, 56, 789};

    // A first-start source handing over the run's bytes.
    static DeviceFileSource bytes(const std::uint8_t* data, std::size_t size)
    {
        return [text = std::string(reinterpret_cast<const char*>(data), size)] { return text; };
    }
};
