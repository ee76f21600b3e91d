// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

class MessageSink;
class SqliteConnection;

// Registry value types as stored.
enum class RegistryType : std::uint32_t { String = 1, Binary = 3, Dword = 4 };

struct RegistryValue
{
    RegistryType type = RegistryType::Binary;
    std::vector<std::uint8_t> data;
};

// A value with where it is stored: its key path (as stored, case-folded) and its name.
struct StoredRegistryValue
{
    std::wstring key;
    std::wstring name;
    RegistryValue value;
};

// The registry hive (HKEY_LOCAL_MACHINE): the file registry.db in the state folder. Key paths compare
// case-insensitively and creating a key creates its parents; value names compare exactly.
class SettingsHive
{
public:
    // Opens or creates `file`. A file that is not a readable database is moved aside under a dated name,
    // `messages` says which file went where (caption "Wanderkit"), and a fresh one is started. Nothing
    // only when even a fresh file cannot be created.
    [[nodiscard]] static std::unique_ptr<SettingsHive> open(const std::filesystem::path& file, MessageSink& messages);
    [[nodiscard]] static std::unique_ptr<SettingsHive> openInMemory();
    ~SettingsHive();

    [[nodiscard]] bool keyExists(std::wstring_view path);
    // The value of that exact name; nothing when the key or the value is missing.
    [[nodiscard]] std::optional<RegistryValue> value(std::wstring_view path, std::wstring_view name);
    // Creates the key and its parents when needed and stores the value; an unchanged value is not rewritten.
    bool setValue(
        std::wstring_view path, std::wstring_view name, RegistryType type, std::span<const std::uint8_t> data);
    // Runs `writes` as one write: the values it sets are all stored or, when the process dies or a write
    // fails on the way, none is. False when nothing was stored.
    bool writeTogether(const std::function<void()>& writes);
    // Every value, ordered by key and name.
    std::vector<StoredRegistryValue> values();
    // Removes every key and value.
    bool clear();

private:
    friend class StateFile;

    explicit SettingsHive(std::unique_ptr<SqliteConnection> connection);
    static bool prepare(SqliteConnection& connection);
    bool createKey(const std::string& foldedPath);

    std::unique_ptr<SqliteConnection> m_connection;
};
