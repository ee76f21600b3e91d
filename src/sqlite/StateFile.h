// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sqlite/SqliteConnection.h"

#include <ctime>
#include <filesystem>
#include <functional>
#include <memory>

class MessageSink;

// Opens a database of the state folder (registry.db, objectstore.db). A file that is not a readable
// database of ours is moved aside under a dated name, the user is told, and a fresh file is started.
class StateFile
{
public:
    // Creates or checks the tables; false when the file's schema is not one we can use.
    using Prepare = std::function<bool(SqliteConnection&)>;

    // Nothing only when not even a fresh file can be opened, the file stays locked by another process, or
    // the file is not a regular file of the user's (StateFolder::openFailure then says why).
    [[nodiscard]] static std::unique_ptr<SqliteConnection> open(
        const std::filesystem::path& file, MessageSink& messages, const Prepare& prepare);
    // An in-memory database with the same tables.
    [[nodiscard]] static std::unique_ptr<SqliteConnection> openInMemory(const Prepare& prepare);

    // A `Database` built on the connection `open` or `openInMemory` gives, prepared by `Database::prepare`;
    // nothing when that gives none. The database class makes StateFile a friend for its constructor.
    template<typename Database>
    [[nodiscard]] static std::unique_ptr<Database> openAs(const std::filesystem::path& file, MessageSink& messages)
    {
        return wrap<Database>(open(file, messages, &Database::prepare));
    }
    template<typename Database>
    [[nodiscard]] static std::unique_ptr<Database> openInMemoryAs()
    {
        return wrap<Database>(openInMemory(&Database::prepare));
    }

    // Where a broken `file` goes: "<name>.broken-YYYYMMDD-HHMMSS" beside it, numbered when that exists.
    static std::filesystem::path setAsideName(const std::filesystem::path& file, const std::tm& localTime);

private:
    template<typename Database>
    static std::unique_ptr<Database> wrap(std::unique_ptr<SqliteConnection> connection)
    {
        return connection ? std::unique_ptr<Database>(new Database(std::move(connection))) : nullptr;
    }
};
