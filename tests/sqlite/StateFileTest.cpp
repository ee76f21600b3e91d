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

namespace {

// Each state file, with a way to open it, store a marker when `write` (padded so that a truncation cuts
// real pages), and tell whether the marker is there; false when the file cannot be opened.
using OpenAndCheck = bool (*)(const std::filesystem::path& file, MessageSink& messages, bool write);
const std::pair<const char*, OpenAndCheck> Kinds[] = {
    {"registry.db",
        [](const std::filesystem::path& file, MessageSink& messages, bool write) {
            const auto hive = SettingsHive::open(file, messages);
            if (hive && write) {
                const std::vector<std::uint8_t> padding(40000, 0xA5);
                RegistrySettings(*hive).SetBinary(L"Wanderkit", L"padding", padding.data(), padding.size());
                RegistrySettings(*hive).SetDWORD(L"Wanderkit", L"marker", 7);
            }
            return hive && RegistrySettings(*hive).GetDWORD(L"Wanderkit", L"marker") == 7;
        }},
    {"objectstore.db",
        [](const std::filesystem::path& file, MessageSink& messages, bool write) {
            const auto store = ObjectStore::open(file, messages);
            if (!store)
                return false;
            PropertyDatabase database(*store);
            if (write) {
                database.Create(L"marker", 1, 1, std::array<PropertyId, 1> {1}, 0);
                database.Open(L"marker");
                database.Add(std::array<Property, 1> {{{1, L"7"}}}, 0);
                for (int i = 0; i < 40; ++i)
                    database.Add(std::array<Property, 1> {{{1, std::wstring(900, L'p')}}}, PropertyDatabase::NoKey);
            }
            return database.Open(L"marker") && database.ReadAt(0, 1) == L"7";
        }},
};

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
    const std::pair<const char*, void (*)(const std::filesystem::path&)> damages[]
        = {{"garbage", [](const std::filesystem::path& file) { overwriteWith(file, std::string(3000, '\x5A')); }},
            {"a short garbage file", [](const std::filesystem::path& file) { overwriteWith(file, "not a database"); }},
            {"a truncated real database", &truncateToHalf}, {"a database of another program", &foreignDatabase}};
    for (const auto& [name, openAndCheck] : Kinds) {
        for (const auto& [what, damage] : damages) {
            SCOPED_TRACE(std::string(name) + ": " + what);
            TempDir dir;
            const auto file = dir.path() / name;
            RecordingMessageSink messages;
            ASSERT_TRUE(openAndCheck(file, messages, true));
            damage(file);
            const std::string damaged = TempDir::read(file);

            EXPECT_FALSE(openAndCheck(file, messages, false)) << "a fresh file has no marker";
            const auto aside = setAside(dir.path());
            ASSERT_EQ(aside.size(), 1u);
            EXPECT_TRUE(TempDir::read(aside[0]) == damaged) << "nothing is lost";
            ASSERT_EQ(messages.messages.size(), 1u);
            const auto& [text, caption] = messages.messages[0];
            EXPECT_NE(text.find(Utf8ToWide(file.string())), std::wstring::npos);
            EXPECT_NE(text.find(Utf8ToWide(aside[0].string())), std::wstring::npos);
            EXPECT_EQ(caption, L"Wanderkit");

            EXPECT_TRUE(openAndCheck(file, messages, true)) << "the fresh file works";
            EXPECT_TRUE(openAndCheck(file, messages, false)) << "and keeps what is written";
            EXPECT_EQ(messages.messages.size(), 1u);
        }
    }

    // Nothing, and no message, when no file can be created.
    TempDir dir;
    dir.write("plain", "a file where a folder should be");
    RecordingMessageSink messages;
    EXPECT_EQ(SettingsHive::open(dir.path() / "plain" / "registry.db", messages), nullptr);
    EXPECT_EQ(ObjectStore::open(dir.path() / "plain" / "objectstore.db", messages), nullptr);
    EXPECT_TRUE(messages.messages.empty());
}
