// SPDX-License-Identifier: GPL-3.0-or-later
#include "device/StateFolder.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

// What kind of thing `info` describes, for a message ("a folder", "a named pipe (FIFO)").
std::string kindOf(const struct stat& info)
{
    switch (info.st_mode & S_IFMT) {
    case S_IFDIR:
        return "a folder";
    case S_IFIFO:
        return "a named pipe (FIFO)";
    case S_IFLNK:
        return "a symbolic link";
    case S_IFSOCK:
        return "a socket";
    case S_IFCHR:
    case S_IFBLK:
        return "a device";
    default:
        return "a regular file";
    }
}

// Why the one path `file` cannot be a state file; empty when it is absent or a regular file of the user's.
std::string unusablePath(const fs::path& file)
{
    struct stat info = {};
    if (::lstat(file.c_str(), &info) != 0)
        return errno == ENOENT ? std::string() : file.string() + ": " + std::strerror(errno);
    if (!S_ISREG(info.st_mode))
        return file.string() + " is " + kindOf(info) + ", not a state file";
    if (info.st_uid != ::geteuid())
        return file.string() + " belongs to another user";
    return {};
}

// The process holding a lock on `file` that keeps a writer out, if any.
std::optional<pid_t> lockHolder(const fs::path& file)
{
    const int fd = ::open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (fd < 0)
        return std::nullopt;
    struct flock probe = {};
    probe.l_type = F_WRLCK;
    probe.l_whence = SEEK_SET;
    const bool locked = ::fcntl(fd, F_GETLK, &probe) == 0 && probe.l_type != F_UNLCK;
    ::close(fd);
    return locked ? std::optional<pid_t>(probe.l_pid) : std::nullopt;
}

// The owner of the folder a state folder path leads to, following a symbolic link.
bool ownedByUser(const fs::path& folder)
{
    struct stat info = {};
    return ::stat(folder.c_str(), &info) == 0 && info.st_uid == ::geteuid();
}

} // namespace

fs::path StateFolder::locate(const std::optional<fs::path>& chosen)
{
    if (chosen)
        return *chosen;
    if (const char* data = std::getenv("XDG_DATA_HOME"); data && *data == '/')
        return fs::path(data) / "wanderkit";
    const char* home = std::getenv("HOME");
    // Without $HOME, the home folder the user database gives, never a folder shared by every user.
    if (!home || !*home) {
        const passwd* user = ::getpwuid(::geteuid());
        home = user ? user->pw_dir : nullptr;
    }
    return fs::path(home && *home ? home : "/tmp") / ".local" / "share" / "wanderkit";
}

bool StateFolder::prepare(const fs::path& folder, std::string& error)
{
    const auto fail = [&](const std::string& reason) {
        error = "Cannot use the state folder " + folder.string() + ": " + reason;
        return false;
    };
    std::error_code ec;
    if (!fs::exists(folder, ec)) {
        fs::create_directories(folder, ec);
        if (ec)
            return fail(ec.message());
        ::chmod(folder.c_str(), 0700);
    }
    if (!fs::is_directory(folder, ec))
        return fail("it is not a folder");
    if (!ownedByUser(folder)) {
        const bool link = fs::is_symlink(folder, ec);
        return fail(link ? "it is a symbolic link to " + fs::read_symlink(folder, ec).string()
                    + ", which belongs to another user"
                         : "it belongs to another user");
    }
    const fs::path probe = folder / ".write-test";
    const int fd = ::open(probe.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW | O_CLOEXEC, 0600);
    if (fd < 0)
        return fail(std::strerror(errno));
    ::close(fd);
    fs::remove(probe, ec);
    return true;
}

std::string StateFolder::unusableFile(const fs::path& file)
{
    for (const char* suffix : {"", "-wal", "-shm", "-journal"}) {
        std::string problem = unusablePath(file.string() + suffix);
        if (!problem.empty())
            return problem;
    }
    return {};
}

std::string StateFolder::openFailure(const fs::path& file)
{
    const std::string intro = "Cannot use the state file " + file.string() + ": ";
    if (std::string problem = unusableFile(file); !problem.empty())
        return problem;
    if (const auto holder = lockHolder(file))
        return intro + "it is locked by another program (process " + std::to_string(*holder) + ")";
    const int fd = ::open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    if (fd < 0)
        return intro + std::strerror(errno);
    ::close(fd);
    return intro + "it cannot be opened as a database";
}

fs::path StateFolder::locateDeviceRoot(const std::optional<fs::path>& chosen)
{
    if (chosen)
        return *chosen;
    std::error_code ec;
    const fs::path program = fs::read_symlink("/proc/self/exe", ec);
    return program.parent_path().parent_path() / "share" / "wanderkit" / "device";
}
