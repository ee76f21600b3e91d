// SPDX-License-Identifier: GPL-3.0-or-later
#include "sqlite/SqliteTransaction.h"

#include "sqlite/SqliteConnection.h"

SqliteTransaction::SqliteTransaction(SqliteConnection& connection)
    : m_connection(connection)
    , m_joined(connection.inTransaction())
{
    // IMMEDIATE takes the write lock at once: a read that later turns into a write could otherwise fail
    // with SQLITE_BUSY without waiting when another process commits in between.
    const bool begun = m_joined || m_connection.query("BEGIN IMMEDIATE").run();
    if (begun && !m_joined)
        m_connection.beginTransaction();
    m_state = begun ? State::Open : State::Failed;
}

SqliteTransaction::~SqliteTransaction()
{
    if (m_state != State::Open)
        return;
    if (m_joined) {
        m_connection.failTransaction();
        return;
    }
    m_connection.execute("ROLLBACK");
    m_connection.noteChange();
}

bool SqliteTransaction::commit()
{
    if (m_state != State::Open)
        return false;
    if (!m_joined && (m_connection.transactionFailed() || !m_connection.query("COMMIT").run()))
        return false;
    m_state = State::Done;
    return true;
}
