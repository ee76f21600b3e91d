// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/SqliteTransaction.h"

#include "store/SqliteConnection.h"

SqliteTransaction::SqliteTransaction(SqliteConnection& connection)
    : m_connection(connection)
    , m_nested(connection.inTransaction())
{
    // IMMEDIATE takes the write lock at once: a read that later turns into a write could otherwise fail
    // with SQLITE_BUSY without waiting when another process commits in between.
    const bool begun = m_connection.query(m_nested ? "SAVEPOINT nested" : "BEGIN IMMEDIATE").run();
    m_state = begun ? State::Open : State::Failed;
}

SqliteTransaction::~SqliteTransaction()
{
    if (m_state != State::Open)
        return;
    if (m_nested)
        m_connection.execute("ROLLBACK TO nested; RELEASE nested");
    else
        m_connection.execute("ROLLBACK");
    m_connection.noteChange();
}

bool SqliteTransaction::commit()
{
    if (m_state != State::Open)
        return false;
    if (!m_connection.query(m_nested ? "RELEASE nested" : "COMMIT").run())
        return false;
    m_state = State::Done;
    return true;
}
