// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sqlite/SqliteQuery.h"

#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <string_view>

struct sqlite3;

// One SQLite connection with a cache of prepared statements. Used by the settings hive and the object store.
class SqliteConnection
{
public:
    // Opens a database file for reading and writing, creating it (mode 0600, folder 0700) when missing.
    // Nothing when SQLite cannot even start on the path; whether the content is readable shows on first use.
    [[nodiscard]] static std::unique_ptr<SqliteConnection> openFile(const std::filesystem::path& file);
    [[nodiscard]] static std::unique_ptr<SqliteConnection> openInMemory();
    ~SqliteConnection();
    SqliteConnection(const SqliteConnection&) = delete;
    SqliteConnection& operator=(const SqliteConnection&) = delete;

    // Runs statements that return nothing the caller needs; false on the first error.
    bool execute(const char* sql);
    // A query on a statement prepared once per connection and text.
    SqliteQuery query(std::string_view sql);
    // True when `sql` compiles against the current schema.
    [[nodiscard]] bool compiles(std::string_view sql);
    // Brings the schema from PRAGMA user_version to steps.size(), step i upgrading version i, in one transaction.
    [[nodiscard]] bool migrate(std::span<const char* const> steps);

    // The primary result code of the most recent failed call (SQLITE_BUSY, SQLITE_NOTADB, ...).
    int lastError() const;
    bool inTransaction() const;
    std::int64_t lastInsertId() const;

    // Counts writes and rollbacks of this connection, so that in-memory copies of stored data can tell
    // when they are out of date (SQLite's data_version only counts other connections' commits).
    std::uint64_t changeCount() const { return m_changes; }
    void noteChange() { ++m_changes; }

    // Bookkeeping of SqliteTransaction: each outermost transaction gets a new serial number, and a joined
    // part that failed marks it for rollback.
    void beginTransaction()
    {
        ++m_transactionSerial;
        m_transactionFailed = false;
    }
    void failTransaction() { m_transactionFailed = true; }
    bool transactionFailed() const { return m_transactionFailed; }
    std::uint64_t transactionSerial() const { return m_transactionSerial; }

private:
    explicit SqliteConnection(sqlite3* handle);

    sqlite3* m_handle;
    std::map<std::string, struct sqlite3_stmt*, std::less<>> m_statements;
    std::uint64_t m_changes = 0;
    std::uint64_t m_transactionSerial = 0;
    bool m_transactionFailed = false;
};
