// SPDX-License-Identifier: GPL-3.0-or-later
#include "device/StateFolder.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

fs::path StateFolder::locate(const std::optional<fs::path>& chosen)
{
    if (chosen)
        return *chosen;
    if (const char* data = std::getenv("XDG_DATA_HOME"); data && *data == '/')
        return fs::path(data) / "wanderkit";
    const char* home = std::getenv("HOME");
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
    const fs::path probe = folder / ".write-test";
    const int fd = ::open(probe.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    if (fd < 0)
        return fail(std::strerror(errno));
    ::close(fd);
    fs::remove(probe, ec);
    return true;
}

fs::path StateFolder::locateDeviceRoot(const std::optional<fs::path>& chosen)
{
    if (chosen)
        return *chosen;
    std::error_code ec;
    const fs::path program = fs::read_symlink("/proc/self/exe", ec);
    return program.parent_path().parent_path() / "share" / "wanderkit" / "device";
}
