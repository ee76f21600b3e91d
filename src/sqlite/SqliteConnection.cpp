// SPDX-License-Identifier: GPL-3.0-or-later
#include "sqlite/SqliteConnection.h"

#include "sqlite/SqliteTransaction.h"

#include <sqlite3.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int BusyTimeoutMs = 5000;

// Creates the file with owner-only permissions before SQLite sees it; SQLite gives its -wal and -shm
// files the same permissions as the database file.
bool createPrivately(const std::filesystem::path& file)
{
    std::error_code error;
    const auto folder = file.parent_path();
    if (!folder.empty() && !std::filesystem::exists(folder, error)) {
        if (!std::filesystem::create_directories(folder, error))
            return false;
        ::chmod(folder.c_str(), 0700);
    }
    const int fd = ::open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    if (fd < 0)
        return false;
    ::close(fd);
    return true;
}

} // namespace

SqliteConnection::SqliteConnection(sqlite3* handle)
    : m_handle(handle)
{
    sqlite3_busy_timeout(m_handle, BusyTimeoutMs);
    sqlite3_extended_result_codes(m_handle, 0);
}

std::unique_ptr<SqliteConnection> SqliteConnection::openFile(const std::filesystem::path& file)
{
    if (!createPrivately(file))
        return nullptr;
    sqlite3* handle = nullptr;
    const int result = sqlite3_open_v2(file.c_str(), &handle, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
    if (result != SQLITE_OK) {
        sqlite3_close(handle);
        return nullptr;
    }
    return std::unique_ptr<SqliteConnection>(new SqliteConnection(handle));
}

std::unique_ptr<SqliteConnection> SqliteConnection::openInMemory()
{
    sqlite3* handle = nullptr;
    if (sqlite3_open_v2(":memory:", &handle, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr) != SQLITE_OK) {
        sqlite3_close(handle);
        return nullptr;
    }
    return std::unique_ptr<SqliteConnection>(new SqliteConnection(handle));
}

SqliteConnection::~SqliteConnection()
{
    for (auto& [sql, statement] : m_statements)
        sqlite3_finalize(statement);
    sqlite3_close(m_handle);
}

bool SqliteConnection::execute(const char* sql)
{
    return sqlite3_exec(m_handle, sql, nullptr, nullptr, nullptr) == SQLITE_OK;
}

SqliteQuery SqliteConnection::query(std::string_view sql)
{
    auto found = m_statements.find(sql);
    if (found == m_statements.end()) {
        sqlite3_stmt* statement = nullptr;
        if (sqlite3_prepare_v3(
                m_handle, sql.data(), static_cast<int>(sql.size()), SQLITE_PREPARE_PERSISTENT, &statement, nullptr)
            != SQLITE_OK)
            return SqliteQuery(nullptr);
        found = m_statements.emplace(std::string(sql), statement).first;
    }
    return SqliteQuery(found->second);
}

bool SqliteConnection::compiles(std::string_view sql)
{
    sqlite3_stmt* statement = nullptr;
    const int result = sqlite3_prepare_v2(m_handle, sql.data(), static_cast<int>(sql.size()), &statement, nullptr);
    sqlite3_finalize(statement);
    return result == SQLITE_OK;
}

bool SqliteConnection::migrate(std::span<const char* const> steps)
{
    SqliteTransaction transaction(*this);
    std::int64_t version = -1;
    {
        SqliteQuery current = query("PRAGMA user_version");
        if (current.next())
            version = current.integer(0);
    }
    if (!transaction.active() || version < 0)
        return false;
    for (auto step = static_cast<std::size_t>(version); step < steps.size(); ++step) {
        if (!execute(steps[step]))
            return false;
    }
    if (static_cast<std::size_t>(version) < steps.size()) {
        const std::string setVersion = "PRAGMA user_version = " + std::to_string(steps.size());
        if (!execute(setVersion.c_str()))
            return false;
    }
    return transaction.commit();
}

int SqliteConnection::lastError() const
{
    return sqlite3_errcode(m_handle) & 0xFF;
}

bool SqliteConnection::inTransaction() const
{
    return sqlite3_get_autocommit(m_handle) == 0;
}

std::int64_t SqliteConnection::lastInsertId() const
{
    return sqlite3_last_insert_rowid(m_handle);
}
