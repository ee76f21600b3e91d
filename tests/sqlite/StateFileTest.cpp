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
#include <csignal>
#include <fstream>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

// Each state file, with a way to open it, store a marker when `write` (padded so that a truncation cuts
// real pages), and tell whether the marker is there; false when the file cannot be opened.
using OpenAndCheck = bool (*)(const fs::path& file, MessageSink& messages, bool write);
const std::pair<const char*, OpenAndCheck> Kinds[] = {
    {"registry.db",
        [](const fs::path& file, MessageSink& messages, bool write) {
            const auto hive = SettingsHive::open(file, messages);
            if (hive && write) {
                RegistrySettings(*hive).SetString(L"Wanderkit", L"padding", std::wstring(20000, L'p'));
                RegistrySettings(*hive).SetDWORD(L"Wanderkit", L"marker", 7);
            }
            return hive && RegistrySettings(*hive).GetDWORD(L"Wanderkit", L"marker") == 7;
        }},
    {"objectstore.db",
        [](const fs::path& file, MessageSink& messages, bool write) {
            const auto store = ObjectStore::open(file, messages);
            if (!store)
                return false;
            PropertyDatabase database(*store);
            if (write) {
                database.Create(L"marker", 1, 1, std::array<PropertyId, 1> {1}, 0);
                database.Open(L"marker");
                database.Add(std::array<Property, 1> {{{1, L"7"}}}, 0);
                database.Add(std::array<Property, 1> {{{1, std::wstring(40000, L'p')}}}, PropertyDatabase::NoKey);
            }
            return database.Open(L"marker") && database.ReadAt(0, 1) == L"7";
        }},
};

void foreignDatabase(const fs::path& file)
{
    fs::remove(file);
    sqlite3* handle = nullptr;
    sqlite3_open(file.c_str(), &handle);
    sqlite3_exec(handle, "CREATE TABLE databases(x); CREATE TABLE registry_keys(y); PRAGMA user_version = 1;", nullptr,
        nullptr, nullptr);
    sqlite3_close(handle);
}

std::vector<fs::path> setAside(const fs::path& folder)
{
    std::vector<fs::path> found;
    for (const auto& entry : fs::directory_iterator(folder)) {
        if (entry.path().filename().string().find(".broken-") != std::string::npos)
            found.push_back(entry.path());
    }
    return found;
}

} // namespace

TEST(StateFile, UnreadableFilesAreSetAsideAndReplaced)
{
    const std::pair<const char*, void (*)(const fs::path&)> damages[]
        = {{"garbage", [](const fs::path& file) { std::ofstream(file) << std::string(3000, 'Z'); }},
            {"a truncated real database", [](const fs::path& file) { fs::resize_file(file, fs::file_size(file) / 2); }},
            {"a database of another program", &foreignDatabase}};
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
            EXPECT_EQ(messages.messages,
                (std::vector<RecordingMessageSink::Message> {
                    {Utf8ToWide(file.string() + " is not a readable database. It was set aside as " + aside[0].string()
                         + " and a fresh one was started."),
                        L"Wanderkit"}}));

            EXPECT_TRUE(openAndCheck(file, messages, true)) << "the fresh file works";
            EXPECT_TRUE(openAndCheck(file, messages, false)) << "and keeps what is written";
            EXPECT_EQ(messages.messages.size(), 1u);
        }
    }

    // Nothing, and no message, when no file can be created.
    TempDir dir;
    RecordingMessageSink messages;
    for (const auto& [name, openAndCheck] : Kinds)
        EXPECT_FALSE(openAndCheck(dir.write("plain", "") / name, messages, true)) << name;
    EXPECT_TRUE(messages.messages.empty());
}

// What a state file's write stored is on disk when the write returns: a process killed right after it
// loses nothing.
TEST(StateFile, WhatAKilledProcessWroteIsThere)
{
    for (const auto& [name, openAndCheck] : Kinds) {
        TempDir dir;
        RecordingMessageSink messages;
        const pid_t child = fork();
        if (child == 0) {
            openAndCheck(dir.path() / name, messages, true);
            raise(SIGKILL);
        }
        waitpid(child, nullptr, 0);
        EXPECT_TRUE(openAndCheck(dir.path() / name, messages, false)) << name;
        EXPECT_TRUE(messages.messages.empty());
    }
}
