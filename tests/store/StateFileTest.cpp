// SPDX-License-Identifier: GPL-3.0-or-later

#include "settings/RegistrySettings.h"
#include "settings/SettingsHive.h"
#include "store/ObjectStore.h"
#include "store/PropertyDatabase.h"
#include "support/RecordingMessageSink.h"
#include "support/TempDir.h"
#include "text/WideText.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <array>
#include <fstream>
#include <sys/stat.h>

namespace {

// Each state file, with a way to store one thing in it and to read it back.
struct StateKind
{
    const char* name;
    // Opens the file, stores a marker when `write`, and tells whether the marker is there.
    bool (*openAndCheck)(const std::filesystem::path& file, MessageSink& messages, bool write);
};

bool registryMarker(const std::filesystem::path& file, MessageSink& messages, bool write)
{
    auto hive = SettingsHive::open(file, messages);
    if (!hive)
        return false;
    RegistrySettings settings(*hive);
    if (write) {
        settings.SetDWORD(L"Wanderkit", L"marker", 7);
        const std::vector<std::uint8_t> padding(40000, 0xA5); // so that a truncation cuts real pages
        settings.SetBinary(L"Wanderkit", L"padding", padding.data(), padding.size());
    }
    return settings.GetDWORD(L"Wanderkit", L"marker") == 7;
}

bool objectStoreMarker(const std::filesystem::path& file, MessageSink& messages, bool write)
{
    auto store = ObjectStore::open(file, messages);
    if (!store)
        return false;
    PropertyDatabase database(*store);
    if (write) {
        const std::array<PropertyId, 1> sort = {1};
        database.Create(L"marker", 1, 1, sort, 0);
        database.Open(L"marker");
        database.Add(std::array<Property, 1> {{{1, L"7"}}}, 0);
        for (int i = 0; i < 40; ++i) // so that a truncation cuts real pages
            database.Add(std::array<Property, 1> {{{1, std::wstring(900, L'p')}}}, PropertyDatabase::NoKey);
    }
    return database.Open(L"marker") && database.ReadAt(0, 1) == L"7";
}

const StateKind Kinds[] = {
    {"registry.db", &registryMarker},
    {"objectstore.db", &objectStoreMarker},
};

std::string fileBytes(const std::filesystem::path& file)
{
    std::ifstream in(file, std::ios::binary);
    return std::string((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
}

// A real state file cut in the middle of its pages.
void truncateToHalf(const std::filesystem::path& file)
{
    std::filesystem::resize_file(file, std::filesystem::file_size(file) / 2);
}

void overwriteWith(const std::filesystem::path& file, const std::string& bytes)
{
    std::ofstream(file, std::ios::binary | std::ios::trunc) << bytes;
}

void foreignDatabase(const std::filesystem::path& file)
{
    std::filesystem::remove(file);
    sqlite3* handle = nullptr;
    sqlite3_open(file.c_str(), &handle);
    sqlite3_exec(handle, "CREATE TABLE databases(x); CREATE TABLE registry_keys(y); PRAGMA user_version = 1;", nullptr,
        nullptr, nullptr);
    sqlite3_close(handle);
}

std::vector<std::filesystem::path> setAside(const std::filesystem::path& folder)
{
    std::vector<std::filesystem::path> found;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (entry.path().filename().string().find(".broken-") != std::string::npos)
            found.push_back(entry.path());
    }
    return found;
}

} // namespace

TEST(StateFile, UnreadableFilesAreSetAsideAndReplaced)
{
    struct Damage
    {
        const char* what;
        void (*apply)(const std::filesystem::path& file);
    };
    const Damage damages[] = {
        {"garbage", [](const std::filesystem::path& file) { overwriteWith(file, std::string(3000, '\x5A')); }},
        {"a short garbage file", [](const std::filesystem::path& file) { overwriteWith(file, "not a database"); }},
        {"a truncated real database", &truncateToHalf},
        {"a database of another program", &foreignDatabase},
    };
    for (const StateKind& kind : Kinds) {
        for (const Damage& damage : damages) {
            SCOPED_TRACE(std::string(kind.name) + ": " + damage.what);
            TempDir dir;
            const auto file = dir.path() / kind.name;
            RecordingMessageSink messages;
            ASSERT_TRUE(kind.openAndCheck(file, messages, true));
            damage.apply(file);
            const std::string damaged = fileBytes(file);

            EXPECT_FALSE(kind.openAndCheck(file, messages, false)) << "a fresh file has no marker";
            const auto aside = setAside(dir.path());
            ASSERT_EQ(aside.size(), 1u);
            EXPECT_TRUE(fileBytes(aside[0]) == damaged) << "nothing is lost";
            ASSERT_EQ(messages.messages.size(), 1u);
            EXPECT_NE(messages.messages[0].text.find(Utf8ToWide(file.string())), std::wstring::npos);
            EXPECT_NE(messages.messages[0].text.find(Utf8ToWide(aside[0].string())), std::wstring::npos);
            EXPECT_EQ(messages.messages[0].caption, L"Wanderkit");

            EXPECT_TRUE(kind.openAndCheck(file, messages, true)) << "the fresh file works";
            EXPECT_TRUE(kind.openAndCheck(file, messages, false)) << "and keeps what is written";
            EXPECT_EQ(messages.messages.size(), 1u);
        }
    }
}

TEST(StateFile, FilesArePrivateAndKeptAcrossStarts)
{
    for (const StateKind& kind : Kinds) {
        SCOPED_TRACE(kind.name);
        TempDir dir;
        const auto file = dir.path() / "state" / kind.name;
        RecordingMessageSink messages;
        ASSERT_TRUE(kind.openAndCheck(file, messages, true));
        EXPECT_TRUE(kind.openAndCheck(file, messages, false));
        struct stat info = {};
        auto store = ObjectStore::open(file.parent_path() / "open.db", messages); // keeps its -wal and -shm
        for (const auto& entry : std::filesystem::directory_iterator(file.parent_path())) {
            ASSERT_EQ(::stat(entry.path().c_str(), &info), 0);
            EXPECT_EQ(info.st_mode & 0777, 0600u) << entry.path();
        }
        ASSERT_EQ(::stat(file.parent_path().c_str(), &info), 0);
        EXPECT_EQ(info.st_mode & 0777, 0700u);
        EXPECT_TRUE(messages.messages.empty());
        EXPECT_TRUE(setAside(file.parent_path()).empty());
    }
}

TEST(StateFile, NothingWhenNoFileCanBeCreated)
{
    TempDir dir;
    dir.write("plain", "a file where a folder should be");
    RecordingMessageSink messages;
    EXPECT_EQ(SettingsHive::open(dir.path() / "plain" / "registry.db", messages), nullptr);
    EXPECT_EQ(ObjectStore::open(dir.path() / "plain" / "objectstore.db", messages), nullptr);
    EXPECT_TRUE(messages.messages.empty());
}
