// SPDX-License-Identifier: GPL-3.0-or-later
#include "sqlite/StateFile.h"

#include "device/MessageSink.h"
#include "device/StateFolder.h"
#include "text/WideText.h"

#include <sqlite3.h>

#include <optional>
#include <sys/stat.h>

namespace {

enum class Outcome { Opened, Unreadable, Failed };

struct Attempt
{
    std::unique_ptr<SqliteConnection> connection;
    Outcome outcome;
};

// Errors that come from the machine (locks, disk, permissions) rather than from the file's content:
// a file that fails with one of these is left where it is.
bool isEnvironmentError(int code)
{
    switch (code) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
    case SQLITE_NOMEM:
    case SQLITE_READONLY:
    case SQLITE_IOERR:
    case SQLITE_FULL:
    case SQLITE_CANTOPEN:
    case SQLITE_PERM:
    case SQLITE_INTERRUPT:
    case SQLITE_AUTH:
        return true;
    default:
        return false;
    }
}

bool passesQuickCheck(SqliteConnection& connection)
{
    SqliteQuery check = connection.query("PRAGMA quick_check");
    return check.next() && check.text(0) == "ok";
}

// Write-ahead log with a sync at every commit: a setting or a load that returned is on disk. The log is
// switched on only once the file is known to be ours, so that a file set aside is left exactly as it was.
bool useDurableLog(SqliteConnection& connection)
{
    return connection.execute("PRAGMA journal_mode = WAL");
}

Attempt tryOpen(const std::filesystem::path& file, const StateFile::Prepare& prepare)
{
    auto connection = SqliteConnection::openFile(file);
    if (!connection)
        return {nullptr, Outcome::Failed};
    if (connection->execute("PRAGMA synchronous = FULL") && passesQuickCheck(*connection) && prepare(*connection)
        && useDurableLog(*connection))
        return {std::move(connection), Outcome::Opened};
    return {nullptr, isEnvironmentError(connection->lastError()) ? Outcome::Failed : Outcome::Unreadable};
}

std::filesystem::path withSuffix(const std::filesystem::path& file, std::string_view suffix)
{
    std::string name = file.native();
    name.append(suffix);
    return name;
}

std::optional<std::filesystem::path> setAside(const std::filesystem::path& file)
{
    const std::time_t now = std::time(nullptr);
    std::tm local {};
    localtime_r(&now, &local);
    const auto aside = StateFile::setAsideName(file, local);
    std::error_code error;
    std::filesystem::rename(file, aside, error);
    if (error)
        return std::nullopt;
    // The log belongs to the broken file; a fresh file must not replay it.
    for (const char* suffix : {"-wal", "-journal"}) {
        if (std::filesystem::exists(withSuffix(file, suffix), error))
            std::filesystem::rename(withSuffix(file, suffix), withSuffix(aside, suffix), error);
    }
    std::filesystem::remove(withSuffix(file, "-shm"), error);
    return aside;
}

std::wstring wide(const std::filesystem::path& path)
{
    return Utf8ToWide(path.string());
}

} // namespace

std::unique_ptr<SqliteConnection> StateFile::open(
    const std::filesystem::path& file, MessageSink& messages, const Prepare& prepare)
{
    // Nothing is opened through a link or in a folder, a pipe or another user's file.
    if (!StateFolder::unusableFile(file).empty())
        return nullptr;
    ::chmod(file.c_str(), 0600); // private even when an older version made it readable to others
    Attempt attempt = tryOpen(file, prepare);
    if (attempt.outcome != Outcome::Unreadable)
        return std::move(attempt.connection);
    const auto aside = setAside(file);
    if (!aside)
        return nullptr;
    messages.showMessage(FormatText(L"%ls is not a readable database. It was set aside as %ls and a fresh one was "
                                    L"started.",
                             wide(file).c_str(), wide(*aside).c_str()),
        L"Wanderkit");
    return tryOpen(file, prepare).connection;
}

std::unique_ptr<SqliteConnection> StateFile::openInMemory(const Prepare& prepare)
{
    auto connection = SqliteConnection::openInMemory();
    if (!connection || !prepare(*connection))
        return nullptr;
    return connection;
}

std::filesystem::path StateFile::setAsideName(const std::filesystem::path& file, const std::tm& localTime)
{
    char stamp[32];
    std::strftime(stamp, sizeof stamp, ".broken-%Y%m%d-%H%M%S", &localTime);
    const std::filesystem::path base = withSuffix(file, stamp);
    std::filesystem::path candidate = base;
    std::error_code error;
    for (int number = 2; std::filesystem::exists(candidate, error); ++number)
        candidate = withSuffix(withSuffix(base, "-"), std::to_string(number));
    return candidate;
}
