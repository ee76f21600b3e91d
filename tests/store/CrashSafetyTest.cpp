// SPDX-License-Identifier: GPL-3.0-or-later
#include "device/DevicePaths.h"
#include "settings/RegistrySettings.h"
#include "store/CityCatalogue.h"
#include "support/RecordingMessageSink.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>

#include <chrono>
#include <random>
#include <signal.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace {

constexpr int Cities = 1100;

std::string citiesFile()
{
    std::string file = "Cities\n" + std::to_string(Cities) + "\n";
    for (int i = 0; i < Cities; ++i)
        file += std::to_string(i) + ";City" + std::to_string(i) + ";Country;1.0;2.0;1;3:0:-1:2;10:0:-1:3;60;0;x\n";
    return file;
}

// Starts a process that runs the first-start load of the city catalogue and waits for nothing.
pid_t startLoad(const std::filesystem::path& stateFile, const DevicePaths& paths)
{
    const pid_t child = fork();
    if (child == 0) {
        RecordingMessageSink messages;
        auto store = ObjectStore::open(stateFile, messages);
        if (store) {
            CityCatalogue catalogue(*store, paths, messages);
            catalogue.Load();
        }
        _exit(store ? 0 : 1);
    }
    return child;
}

// Times one whole load, so that the kills can be spread over it.
std::chrono::microseconds loadDuration(const std::filesystem::path& folder, const DevicePaths& paths)
{
    const auto started = std::chrono::steady_clock::now();
    int status = 0;
    waitpid(startLoad(folder / "timing.db", paths), &status, 0);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
    return std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() - started);
}

} // namespace

// A load killed at any moment leaves the catalogue absent, empty or complete, never half-filled,
// and the file readable (no set-aside message at the next start).
TEST(CrashSafety, AKilledFirstStartLoadLeavesNothingHalfDone)
{
    TempDir dir;
    dir.write("device/cities.lst", citiesFile());
    const DevicePaths paths(dir.path() / "device");
    const auto duration = loadDuration(dir.path(), paths);
    std::mt19937 random(20261122);
    // The kill moments are spread over a window that follows the commit: it shrinks after a complete load
    // and grows after an interrupted one, so a busy machine that slows some loads still hits both sides.
    double window = static_cast<double>(duration.count()) * 3 / 2;

    int complete = 0;
    int interrupted = 0;
    for (int run = 0; run < 200 && (run < 60 || complete == 0 || interrupted == 0); ++run) {
        SCOPED_TRACE(run);
        const auto file = dir.path() / ("run" + std::to_string(run) + ".db");
        const pid_t child = startLoad(file, paths);
        std::uniform_real_distribution<double> moment(0, window);
        std::this_thread::sleep_for(std::chrono::microseconds(static_cast<long long>(moment(random))));
        kill(child, SIGKILL);
        int status = 0;
        waitpid(child, &status, 0);

        RecordingMessageSink messages;
        auto store = ObjectStore::open(file, messages);
        ASSERT_TRUE(store);
        EXPECT_TRUE(messages.messages.empty()) << "the file stayed a readable database";
        PropertyDatabase database(*store);
        const int count = database.Open(CityCatalogue::DatabaseName) ? database.RecordCount() : 0;
        EXPECT_TRUE(count == 0 || count == Cities) << count << " cities";
        (count == Cities ? complete : interrupted)++;
        window *= count == Cities ? 0.9 : 1.1;

        // The next start completes the load.
        CityCatalogue catalogue(*store, paths, messages);
        catalogue.Load();
        EXPECT_EQ(catalogue.Count(), Cities);
    }
    // The moments must have hit both sides of the commit for the test to mean anything.
    EXPECT_GT(complete, 0);
    EXPECT_GT(interrupted, 0);
}

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
