// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/ObjectStore.h"

#include "store/StateFile.h"

#include <array>

namespace {

// Schema versions: entry i upgrades version i to i + 1.
// A record's properties keep their written order (slot); `lookup` is the value as equality searches
// compare it (case-folded for a case-insensitive sort order).
constexpr std::array<const char*, 1> Migrations = {
    "CREATE TABLE databases(id INTEGER PRIMARY KEY, name TEXT NOT NULL UNIQUE COLLATE NOCASE,"
    "  type INTEGER NOT NULL, modified INTEGER NOT NULL DEFAULT 0);"
    "CREATE TABLE sort_orders(db INTEGER NOT NULL, slot INTEGER NOT NULL, prop INTEGER NOT NULL,"
    "  flags INTEGER NOT NULL, PRIMARY KEY(db, slot)) WITHOUT ROWID;"
    "CREATE TABLE records(id INTEGER PRIMARY KEY, db INTEGER NOT NULL);"
    "CREATE INDEX records_by_db ON records(db, id);"
    "CREATE TABLE properties(record INTEGER NOT NULL, slot INTEGER NOT NULL, db INTEGER NOT NULL,"
    "  prop INTEGER NOT NULL, value TEXT NOT NULL, lookup TEXT NOT NULL, PRIMARY KEY(record, slot)) WITHOUT ROWID;"
    "CREATE INDEX properties_by_lookup ON properties(db, prop, lookup);",
};

constexpr std::array<const char*, 4> Probes = {
    "SELECT id, name, type, modified FROM databases",
    "SELECT db, slot, prop, flags FROM sort_orders",
    "SELECT id, db FROM records",
    "SELECT record, slot, db, prop, value, lookup FROM properties",
};

} // namespace

ObjectStore::ObjectStore(std::unique_ptr<SqliteConnection> connection)
    : m_connection(std::move(connection))
{ }

bool ObjectStore::prepare(SqliteConnection& connection)
{
    if (!connection.migrate(Migrations))
        return false;
    for (const char* probe : Probes) {
        if (!connection.compiles(probe))
            return false;
    }
    return true;
}

std::unique_ptr<ObjectStore> ObjectStore::open(const std::filesystem::path& file, MessageSink& messages)
{
    auto connection = StateFile::open(file, messages, &ObjectStore::prepare);
    return connection ? std::unique_ptr<ObjectStore>(new ObjectStore(std::move(connection))) : nullptr;
}

std::unique_ptr<ObjectStore> ObjectStore::openInMemory()
{
    auto connection = StateFile::openInMemory(&ObjectStore::prepare);
    return connection ? std::unique_ptr<ObjectStore>(new ObjectStore(std::move(connection))) : nullptr;
}

ObjectStore::Stamp ObjectStore::stamp()
{
    Stamp stamp;
    stamp.localChanges = m_connection->changeCount();
    SqliteQuery version = m_connection->query("PRAGMA data_version");
    if (version.next())
        stamp.dataVersion = version.integer(0);
    return stamp;
}
