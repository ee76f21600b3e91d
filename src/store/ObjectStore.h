// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sqlite/SqliteConnection.h"
#include "sqlite/SqliteTransaction.h"
#include "store/Property.h"
#include "store/RecordIndex.h"

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>
#include <tuple>

class MessageSink;

// The object store: the file objectstore.db in the state folder, holding the record databases
// ("wdkCities", "wdkCurrencies", ...). One per process; every PropertyDatabase works on it.
class ObjectStore
{
public:
    // RAII transaction: rolled back unless commit() is called. A store's first-start load runs in one.
    using Transaction = SqliteTransaction;

    // What the stored content looked like at one moment: equal stamps mean nothing changed in between,
    // whether through this process or through another one that has the file open.
    struct Stamp
    {
        std::int64_t dataVersion = -1;
        std::uint64_t localChanges = 0;
        friend bool operator==(const Stamp&, const Stamp&) = default;
    };

    // Opens or creates `file`; a file that is not a readable database is set aside (the message says where)
    // and a fresh one is started. Nothing only when even a fresh file cannot be created.
    [[nodiscard]] static std::unique_ptr<ObjectStore> open(const std::filesystem::path& file, MessageSink& messages);
    [[nodiscard]] static std::unique_ptr<ObjectStore> openInMemory();

    // Another process's commits are looked for at most this often; this process's writes are seen at once.
    static constexpr std::chrono::milliseconds OtherWritersInterval {10};

    SqliteConnection& connection() { return *m_connection; }
    Stamp stamp();

    // The records of database `databaseId` in the traversal order of property `sortId`, shared by every
    // accessor of this store and rebuilt when the stored data has changed.
    std::shared_ptr<const RecordIndex> traversal(std::int64_t databaseId, PropertyId sortId, bool caseInsensitive);
    // How many records database `databaseId` holds: from a traversal already built, else counted, so that
    // opening a store does not cost reading all of it.
    std::size_t recordCount(std::int64_t databaseId);

private:
    friend class StateFile;

    struct CachedIndex
    {
        Stamp stamp;
        std::shared_ptr<const RecordIndex> index;
    };

    explicit ObjectStore(std::unique_ptr<SqliteConnection> connection);
    static bool prepare(SqliteConnection& connection);
    std::vector<StoredRecord> records(std::int64_t databaseId);

    std::unique_ptr<SqliteConnection> m_connection;
    std::int64_t m_dataVersion = -1;
    std::chrono::steady_clock::time_point m_versionCheckedAt;
    std::map<std::tuple<std::int64_t, PropertyId, bool>, CachedIndex> m_indexes;
};
