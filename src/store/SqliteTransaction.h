// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class SqliteConnection;

// A write transaction that is rolled back unless commit() is called. Inside another transaction it is a
// savepoint, so operations that protect themselves can also run as part of a larger load.
class SqliteTransaction
{
public:
    explicit SqliteTransaction(SqliteConnection& connection);
    ~SqliteTransaction();
    SqliteTransaction(const SqliteTransaction&) = delete;
    SqliteTransaction& operator=(const SqliteTransaction&) = delete;

    // False when the transaction could not begin (another writer held the file past the busy timeout).
    bool active() const { return m_state == State::Open; }
    bool commit();

private:
    enum class State { Failed, Open, Done };

    SqliteConnection& m_connection;
    bool m_nested;
    State m_state;
};
