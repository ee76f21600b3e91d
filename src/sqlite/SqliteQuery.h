// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

struct sqlite3_stmt;

// One use of a prepared statement kept by its connection: bind, step, read columns.
// The statement is reset when the query ends, so no read transaction is held open by a query left half-read.
class SqliteQuery
{
public:
    // A null statement (its preparation failed) gives a query whose every step fails.
    explicit SqliteQuery(sqlite3_stmt* statement);
    ~SqliteQuery();
    SqliteQuery(const SqliteQuery&) = delete;
    SqliteQuery& operator=(const SqliteQuery&) = delete;

    SqliteQuery& bind(int index, std::int64_t value);
    SqliteQuery& bind(int index, std::string_view text);
    SqliteQuery& bindBlob(int index, std::span<const std::uint8_t> bytes);

    // Steps to the next row; false at the end or on an error.
    bool next();
    // Runs the statement to its end; true when it completed without error.
    bool run();

    bool isNull(int column) const;
    std::int64_t integer(int column) const;
    std::string_view text(int column) const;
    std::span<const std::uint8_t> blob(int column) const;

private:
    sqlite3_stmt* m_statement;
};
