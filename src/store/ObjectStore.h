// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "store/SqliteConnection.h"
#include "store/SqliteTransaction.h"

#include <compare>
#include <cstdint>
#include <filesystem>
#include <memory>

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
    static std::unique_ptr<ObjectStore> open(const std::filesystem::path& file, MessageSink& messages);
    static std::unique_ptr<ObjectStore> openInMemory();

    SqliteConnection& connection() { return *m_connection; }
    Stamp stamp();

private:
    explicit ObjectStore(std::unique_ptr<SqliteConnection> connection);
    static bool prepare(SqliteConnection& connection);

    std::unique_ptr<SqliteConnection> m_connection;
};
