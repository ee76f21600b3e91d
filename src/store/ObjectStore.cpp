// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/ObjectStore.h"

#include "sqlite/StateFile.h"
#include "text/WideText.h"

#include <array>

namespace {

// Schema versions: entry i upgrades version i to i + 1.
// A record holds up to four properties in written order (slots 0 to 3): identifier, value, and `lookup`,
// the value as equality searches compare it (case-folded for a case-insensitive sort order).
constexpr std::array<const char*, 1> Migrations = {
    "CREATE TABLE databases(id INTEGER PRIMARY KEY, name TEXT NOT NULL UNIQUE COLLATE NOCASE,"
    "  type INTEGER NOT NULL, modified INTEGER NOT NULL DEFAULT 0);"
    "CREATE TABLE sort_orders(db INTEGER NOT NULL, slot INTEGER NOT NULL, prop INTEGER NOT NULL,"
    "  flags INTEGER NOT NULL, PRIMARY KEY(db, slot)) WITHOUT ROWID;"
    "CREATE TABLE records(id INTEGER PRIMARY KEY, db INTEGER NOT NULL,"
    "  prop0 INTEGER, value0 TEXT, lookup0 TEXT, prop1 INTEGER, value1 TEXT, lookup1 TEXT,"
    "  prop2 INTEGER, value2 TEXT, lookup2 TEXT, prop3 INTEGER, value3 TEXT, lookup3 TEXT);"
    "CREATE INDEX records_by_lookup0 ON records(db, prop0, lookup0);"
    "CREATE INDEX records_by_lookup1 ON records(db, prop1, lookup1);"
    "CREATE INDEX records_by_lookup2 ON records(db, prop2, lookup2);"
    "CREATE INDEX records_by_lookup3 ON records(db, prop3, lookup3);",
};

constexpr std::array<const char*, 3> Probes = {
    "SELECT id, name, type, modified FROM databases",
    "SELECT db, slot, prop, flags FROM sort_orders",
    "SELECT id, db, prop0, value0, lookup0, prop1, value1, lookup1, prop2, value2, lookup2, prop3, value3, lookup3 "
    "FROM records",
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
    return StateFile::openAs<ObjectStore>(file, messages);
}

std::unique_ptr<ObjectStore> ObjectStore::openInMemory()
{
    return StateFile::openInMemoryAs<ObjectStore>();
}

ObjectStore::Stamp ObjectStore::stamp()
{
    // PRAGMA data_version takes and drops a lock on the shared-memory index (about 2 us): too slow to run
    // before each of a thousand reads by position.
    const auto now = std::chrono::steady_clock::now();
    if (m_dataVersion < 0 || now - m_versionCheckedAt >= OtherWritersInterval) {
        SqliteQuery version = m_connection->query("PRAGMA data_version");
        if (version.next())
            m_dataVersion = version.integer(0);
        m_versionCheckedAt = now;
    }
    return {m_dataVersion, m_connection->changeCount()};
}

std::vector<StoredRecord> ObjectStore::records(std::int64_t databaseId)
{
    std::vector<StoredRecord> records;
    SqliteQuery rows = m_connection->query("SELECT id, prop0, value0, prop1, value1, prop2, value2, prop3, value3 "
                                           "FROM records WHERE db = ?1 ORDER BY id");
    rows.bind(1, databaseId);
    while (rows.next()) {
        StoredRecord& record = records.emplace_back(StoredRecord {rows.integer(0), {}});
        for (int column = 1; column < 9; column += 2) {
            if (!rows.isNull(column))
                record.properties.push_back(
                    {static_cast<PropertyId>(rows.integer(column)), Utf8ToWide(rows.text(column + 1))});
        }
    }
    return records;
}

std::size_t ObjectStore::recordCount(std::int64_t databaseId)
{
    const Stamp now = stamp();
    for (const auto& [key, cached] : m_indexes) {
        if (std::get<0>(key) == databaseId && cached.index && cached.stamp == now)
            return cached.index->size();
    }
    SqliteQuery count = m_connection->query("SELECT count(*) FROM records WHERE db = ?1");
    return count.bind(1, databaseId).next() ? static_cast<std::size_t>(count.integer(0)) : 0;
}

std::shared_ptr<const RecordIndex> ObjectStore::traversal(
    std::int64_t databaseId, PropertyId sortId, bool caseInsensitive)
{
    const Stamp now = stamp();
    CachedIndex& cached = m_indexes[{databaseId, sortId, caseInsensitive}];
    if (!cached.index || !(cached.stamp == now)) {
        cached.index = std::make_shared<const RecordIndex>(records(databaseId), sortId, caseInsensitive);
        cached.stamp = now;
    }
    return cached.index;
}
