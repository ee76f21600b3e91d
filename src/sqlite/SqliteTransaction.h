// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class SqliteConnection;

// A write transaction that is rolled back unless commit() is called. Begun inside another transaction it
// joins that one: it writes no SQL of its own, and ending it without commit() makes the outer commit()
// fail and roll everything back. So an operation that protects itself can run as part of a larger load,
// and a load with one failed write leaves nothing behind.
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
    bool m_joined;
    State m_state;
};
