// SPDX-License-Identifier: GPL-3.0-or-later
#include "sqlite/SqliteQuery.h"

#include <sqlite3.h>

SqliteQuery::SqliteQuery(sqlite3_stmt* statement)
    : m_statement(statement)
{ }

SqliteQuery::~SqliteQuery()
{
    if (m_statement) {
        sqlite3_reset(m_statement);
        sqlite3_clear_bindings(m_statement);
    }
}

SqliteQuery& SqliteQuery::bind(int index, std::int64_t value)
{
    if (m_statement)
        sqlite3_bind_int64(m_statement, index, value);
    return *this;
}

SqliteQuery& SqliteQuery::bind(int index, std::string_view text)
{
    if (m_statement)
        sqlite3_bind_text64(m_statement, index, text.data(), text.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
    return *this;
}

SqliteQuery& SqliteQuery::bindBlob(int index, std::span<const std::uint8_t> bytes)
{
    // A zero-length blob is still a blob, never NULL.
    static const std::uint8_t empty = 0;
    if (m_statement)
        sqlite3_bind_blob64(m_statement, index, bytes.empty() ? &empty : bytes.data(), bytes.size(), SQLITE_TRANSIENT);
    return *this;
}

bool SqliteQuery::next()
{
    return m_statement && sqlite3_step(m_statement) == SQLITE_ROW;
}

bool SqliteQuery::run()
{
    if (!m_statement)
        return false;
    int result = sqlite3_step(m_statement);
    while (result == SQLITE_ROW)
        result = sqlite3_step(m_statement);
    return result == SQLITE_DONE;
}

bool SqliteQuery::isNull(int column) const
{
    return sqlite3_column_type(m_statement, column) == SQLITE_NULL;
}

std::int64_t SqliteQuery::integer(int column) const
{
    return sqlite3_column_int64(m_statement, column);
}

std::string_view SqliteQuery::text(int column) const
{
    const auto* data = reinterpret_cast<const char*>(sqlite3_column_text(m_statement, column));
    const int size = sqlite3_column_bytes(m_statement, column);
    return data ? std::string_view(data, static_cast<std::size_t>(size)) : std::string_view();
}

std::span<const std::uint8_t> SqliteQuery::blob(int column) const
{
    const auto* data = static_cast<const std::uint8_t*>(sqlite3_column_blob(m_statement, column));
    const int size = sqlite3_column_bytes(m_statement, column);
    return data ? std::span<const std::uint8_t>(data, static_cast<std::size_t>(size)) : std::span<const std::uint8_t>();
}
