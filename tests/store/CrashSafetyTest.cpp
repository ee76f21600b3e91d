// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/RegistrySettings.h"
#include "support/RecordingMessageSink.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

// A setting is on disk when the write returns: a process killed right after it loses nothing, and a
// connection opened before the write reads it too.
TEST(CrashSafety, AWrittenSettingOutlivesItsProcess)
{
    TempDir dir;
    const auto file = dir.path() / "registry.db";
    RecordingMessageSink messages;
    auto reader = SettingsHive::open(file, messages);
    ASSERT_TRUE(reader);
    for (std::uint32_t value = 1; value <= 5; ++value) {
        const pid_t child = fork();
        if (child == 0) {
            if (auto hive = SettingsHive::open(file, messages))
                RegistrySettings(*hive).SetDWORD(L"Wanderkit\\map", L"mapclock", value);
            raise(SIGKILL);
        }
        int status = 0;
        waitpid(child, &status, 0);
        auto hive = SettingsHive::open(file, messages);
        ASSERT_TRUE(hive);
        EXPECT_EQ(RegistrySettings(*hive).GetDWORD(L"Wanderkit\\map", L"mapclock"), value);
        EXPECT_EQ(RegistrySettings(*reader).GetDWORD(L"Wanderkit\\map", L"mapclock"), value);
    }
    EXPECT_TRUE(messages.messages.empty());
}
