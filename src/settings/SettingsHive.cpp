// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/SettingsHive.h"

#include "sqlite/SqliteConnection.h"
#include "sqlite/SqliteTransaction.h"
#include "sqlite/StateFile.h"
#include "text/WideText.h"

#include <array>

namespace {

// Schema versions: entry i upgrades version i to i + 1. Keys are stored by their case-folded path.
constexpr std::array<const char*, 1> Migrations = {
    "CREATE TABLE registry_keys(path TEXT PRIMARY KEY) WITHOUT ROWID;"
    "CREATE TABLE registry_values(key TEXT NOT NULL, name TEXT NOT NULL, type INTEGER NOT NULL,"
    "  data BLOB NOT NULL, PRIMARY KEY(key, name)) WITHOUT ROWID;",
};

std::string foldedPath(std::wstring_view path)
{
    return WideToUtf8(FoldLatin1(path));
}

} // namespace

SettingsHive::SettingsHive(std::unique_ptr<SqliteConnection> connection)
    : m_connection(std::move(connection))
{ }

SettingsHive::~SettingsHive() = default;

bool SettingsHive::prepare(SqliteConnection& connection)
{
    return connection.migrate(Migrations) && connection.compiles("SELECT path FROM registry_keys")
        && connection.compiles("SELECT key, name, type, data FROM registry_values");
}

std::unique_ptr<SettingsHive> SettingsHive::open(const std::filesystem::path& file, MessageSink& messages)
{
    return StateFile::openAs<SettingsHive>(file, messages);
}

std::unique_ptr<SettingsHive> SettingsHive::openInMemory()
{
    return StateFile::openInMemoryAs<SettingsHive>();
}

bool SettingsHive::keyExists(std::wstring_view path)
{
    if (path.empty())
        return true; // the root itself
    return m_connection->query("SELECT 1 FROM registry_keys WHERE path = ?1").bind(1, foldedPath(path)).next();
}

std::optional<RegistryValue> SettingsHive::value(std::wstring_view path, std::wstring_view name)
{
    SqliteQuery found = m_connection->query("SELECT type, data FROM registry_values WHERE key = ?1 AND name = ?2");
    if (!found.bind(1, foldedPath(path)).bind(2, WideToUtf8(name)).next())
        return std::nullopt;
    const auto data = found.blob(1);
    return RegistryValue {static_cast<RegistryType>(found.integer(0)), {data.begin(), data.end()}};
}

bool SettingsHive::createKey(const std::string& folded)
{
    if (folded.empty())
        return true; // the root always exists
    // Every prefix ending before a backslash is a parent key.
    for (std::size_t end = folded.find('\\'); end != std::string::npos; end = folded.find('\\', end + 1)) {
        if (!m_connection->query("INSERT OR IGNORE INTO registry_keys(path) VALUES(?1)")
                 .bind(1, folded.substr(0, end))
                 .run())
            return false;
    }
    return m_connection->query("INSERT OR IGNORE INTO registry_keys(path) VALUES(?1)").bind(1, folded).run();
}

bool SettingsHive::setValue(
    std::wstring_view path, std::wstring_view name, RegistryType type, std::span<const std::uint8_t> data)
{
    const std::string folded = foldedPath(path);
    SqliteTransaction transaction(*m_connection);
    const bool stored = createKey(folded)
        && m_connection
               ->query("INSERT INTO registry_values(key, name, type, data) VALUES(?1, ?2, ?3, ?4) "
                       "ON CONFLICT(key, name) DO UPDATE SET type = excluded.type, data = excluded.data "
                       "WHERE type IS NOT excluded.type OR data IS NOT excluded.data")
               .bind(1, folded)
               .bind(2, WideToUtf8(name))
               .bind(3, static_cast<std::int64_t>(type))
               .bindBlob(4, data)
               .run();
    return stored && transaction.commit();
}

bool SettingsHive::writeTogether(const std::function<void()>& writes)
{
    SqliteTransaction transaction(*m_connection);
    if (!transaction.active())
        return false;
    writes();
    return transaction.commit();
}

std::vector<StoredRegistryValue> SettingsHive::values()
{
    std::vector<StoredRegistryValue> values;
    SqliteQuery rows = m_connection->query("SELECT key, name, type, data FROM registry_values ORDER BY key, name");
    while (rows.next()) {
        const auto data = rows.blob(3);
        values.push_back({Utf8ToWide(rows.text(0)), Utf8ToWide(rows.text(1)),
            {static_cast<RegistryType>(rows.integer(2)), {data.begin(), data.end()}}});
    }
    return values;
}

bool SettingsHive::clear()
{
    SqliteTransaction transaction(*m_connection);
    return m_connection->execute("DELETE FROM registry_values; DELETE FROM registry_keys;") && transaction.commit();
}
