// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandResult.h"
#include "TempDir.h"
#include "device/DevicePaths.h"
#include "device/StateFolder.h"
#include "device/SystemDeviceClock.h"
#include "text/WideText.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <ctime>
#include <fcntl.h>
#include <pwd.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <tuple>
#include <unistd.h>

namespace fs = std::filesystem;

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
    // It starts at the given time and knows the standard bias, the same in summer: the winter's in Dublin
    // (whose tz data calls summer time standard) and the southern winter's in Sydney.
    const std::tuple<const char*, std::int32_t> zones[]
        = {{"America/New_York", 300}, {"Asia/Kolkata", -330}, {"Europe/Dublin", 0}, {"Australia/Sydney", -600}};
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

// $XDG_DATA_HOME when it is an absolute path, else under $HOME, else under the home the user database gives.
TEST(StateFolder, DefaultsToTheUsersDataFolder)
{
    const passwd* user = ::getpwuid(::geteuid());
    if (!user)
        GTEST_SKIP() << "the user database has no entry for this user";
    const fs::path userHome = user->pw_dir;
    const std::tuple<const char*, const char*, fs::path> cases[]
        = {{"/data", "/home/a", "/data/wanderkit"}, {"data", "/home/a", "/home/a/.local/share/wanderkit"},
            {nullptr, "", userHome / ".local/share/wanderkit"}, {"", nullptr, userHome / ".local/share/wanderkit"}};
    const auto value = [](const char* name) { return std::string(std::getenv(name) ? std::getenv(name) : ""); };
    const std::string saved[] = {value("XDG_DATA_HOME"), value("HOME")};
    for (const auto& [data, home, folder] : cases) {
        data ? setenv("XDG_DATA_HOME", data, 1) : unsetenv("XDG_DATA_HOME");
        home ? setenv("HOME", home, 1) : unsetenv("HOME");
        EXPECT_EQ(StateFolder::locate(std::nullopt), folder);
    }
    setenv("XDG_DATA_HOME", saved[0].c_str(), 1);
    setenv("HOME", saved[1].c_str(), 1);
}

// A new folder and every file in it are private; the files of an existing folder are made so.
TEST(StateFolder, IsCreatedPrivateAndItsFilesToo)
{
    const auto modeOf = [](const fs::path& path) { return static_cast<unsigned>(fs::status(path).permissions()); };
    TempDir dir;
    const fs::path state = dir.path() / "a" / "state";
    ::chmod(dir.write("old/registry.db", "").c_str(), 0644);
    for (const fs::path& folder : {state, dir.path() / "old"}) {
        const CommandResult result = CommandResult::of("cities", {}, {folder, {}, {}});
        EXPECT_EQ(result.code, 0) << result.err;
        for (const auto& entry : fs::directory_iterator(folder))
            EXPECT_EQ(modeOf(entry.path()), 0600u) << entry.path();
        EXPECT_TRUE(fs::exists(folder / "registry.db") && fs::exists(folder / "objectstore.db"));
    }
    EXPECT_EQ(modeOf(state), 0700u);
}

TEST(StateFolder, RefusesStateFilesThatAreNotRegularFilesOfTheUsers)
{
    using Make = void (*)(const fs::path& file);
    const std::tuple<const char*, Make, const char*, fs::file_type> cases[]
        = {{"registry.db", [](const fs::path& file) { fs::create_directory(file); }, " is a folder",
               fs::file_type::directory},
            {"objectstore.db", [](const fs::path& file) { ::mkfifo(file.c_str(), 0600); }, " is a named pipe (FIFO)",
                fs::file_type::fifo},
            {"registry.db", [](const fs::path& file) { fs::create_symlink("/etc/passwd", file); },
                " is a symbolic link", fs::file_type::symlink},
            {"objectstore.db-wal", [](const fs::path& file) { fs::create_symlink("elsewhere", file); },
                " is a symbolic link", fs::file_type::symlink}};
    for (const auto& [name, make, problem, type] : cases) {
        TempDir state;
        const fs::path file = state.path() / name;
        make(file);
        const CommandResult result = CommandResult::of("cities", {}, {state.path(), {}, {}});
        EXPECT_TRUE(result.refused(1, file.string() + problem));
        EXPECT_EQ(fs::symlink_status(file).type(), type) << file << " is left as it was";
    }

    // The program that holds a lock on a state file is named.
    TempDir state;
    const fs::path file = state.write("registry.db", "");
    int ready[2];
    ASSERT_EQ(::pipe(ready), 0);
    const pid_t holder = ::fork();
    if (holder == 0) {
        struct flock lock = {};
        lock.l_type = F_WRLCK;
        ::fcntl(::open(file.c_str(), O_RDWR), F_SETLK, &lock);
        (void)!::write(ready[1], "l", 1);
        ::pause();
    }
    char byte = 0;
    EXPECT_EQ(::read(ready[0], &byte, 1), 1);
    const std::string failure = StateFolder::openFailure(file);
    ::kill(holder, SIGKILL);
    ::waitpid(holder, nullptr, 0);
    EXPECT_EQ(failure,
        "Cannot use the state file " + file.string() + ": it is locked by another program (process "
            + std::to_string(holder) + ")");
    for (const int fd : ready)
        ::close(fd);
}

TEST(StateFolder, RefusesAFolderOfAnotherUserEvenThroughALink)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "giving a folder to another user needs root";
    TempDir dir;
    const fs::path theirs = dir.path() / "theirs";
    const fs::path mine = dir.path() / "mine";
    fs::create_directory(theirs);
    fs::create_directory(mine);
    ASSERT_EQ(::chown(theirs.c_str(), 65534, 65534), 0); // nobody's
    fs::create_directory_symlink(theirs, dir.path() / "to-theirs");
    fs::create_directory_symlink(mine, dir.path() / "to-mine");
    const std::pair<fs::path, std::string> cases[] = {
        {dir.path() / "to-theirs", ": it is a symbolic link to " + theirs.string() + ", which belongs to another user"},
        {theirs, ": it belongs to another user"}, {dir.path() / "to-mine", ""}};
    for (const auto& [folder, problem] : cases) {
        std::string error;
        EXPECT_EQ(StateFolder::prepare(folder, error), problem.empty()) << folder;
        EXPECT_EQ(error, problem.empty() ? "" : "Cannot use the state folder " + folder.string() + problem);
    }
    EXPECT_TRUE(fs::is_empty(theirs)) << "nothing written there";
}
