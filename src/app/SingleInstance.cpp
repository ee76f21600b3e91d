// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/SingleInstance.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSocketNotifier>

#include <chrono>
#include <cstring>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <thread>
#include <unistd.h>

namespace {

// The socket address of `path`; false when the path is too long for one.
bool makeAddress(const QByteArray& path, sockaddr_un& address)
{
    std::memset(&address, 0, sizeof address);
    address.sun_family = AF_UNIX;
    if (static_cast<std::size_t>(path.size()) >= sizeof address.sun_path)
        return false;
    std::memcpy(address.sun_path, path.constData(), static_cast<std::size_t>(path.size()));
    return true;
}

// Asks an instance listening at `address` to come forward; false when none answers.
bool askRunningInstance(const sockaddr_un& address)
{
    const int fd = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (fd < 0)
        return false;
    const bool answered = ::connect(fd, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
    // The connection itself is the request; the first instance may close it before the line arrives,
    // so sending must not raise SIGPIPE.
    if (answered)
        ::send(fd, "raise\n", 6, MSG_NOSIGNAL);
    ::close(fd);
    return answered;
}

// Asks the instance holding the lock to come forward. It may have taken the lock an instant ago and
// not be listening yet, so it is asked again for up to two seconds.
void askLockHolder(const sockaddr_un& address)
{
    for (int attempt = 0; attempt < 100 && !askRunningInstance(address); ++attempt)
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
}

// The descriptor of `path` locked exclusively, or -1 when another process holds the lock.
int takeLock(const QByteArray& path)
{
    const int fd = ::open(path.constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    if (fd >= 0 && ::flock(fd, LOCK_EX | LOCK_NB) == 0)
        return fd;
    if (fd >= 0)
        ::close(fd);
    return -1;
}

} // namespace

SingleInstance::SingleInstance(QObject* parent)
    : QObject(parent)
{ }

SingleInstance::~SingleInstance()
{
    // The socket is removed while the lock is still held: no later instance can have bound it yet.
    if (m_listener >= 0) {
        ::close(m_listener);
        QFile::remove(socketPath());
    }
    if (m_lock >= 0)
        ::close(m_lock);
}

QString SingleInstance::socketPath()
{
    QString folder = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (folder.isEmpty() || !QFileInfo(folder).isDir()) {
        folder = QDir::tempPath() + QStringLiteral("/wanderkit-%1").arg(getuid());
        QDir().mkpath(folder);
        ::chmod(QFile::encodeName(folder).constData(), 0700);
    }
    return folder + QLatin1Char('/') + QLatin1String(SocketName);
}

QString SingleInstance::lockPath()
{
    return socketPath() + QStringLiteral(".lock");
}

bool SingleInstance::claim()
{
    const QByteArray path = QFile::encodeName(socketPath());
    sockaddr_un address;
    // Without a usable socket path there is no way to find another instance: run alone.
    if (!makeAddress(path, address))
        return true;
    m_lock = takeLock(QFile::encodeName(lockPath()));
    if (m_lock < 0) {
        askLockHolder(address);
        return false;
    }
    // The lock makes the socket path ours: a socket file there was left by an instance that died.
    ::unlink(path.constData());
    m_listener = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    const mode_t mask = ::umask(0077);
    const bool listening = m_listener >= 0
        && ::bind(m_listener, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0
        && ::listen(m_listener, 16) == 0;
    ::umask(mask);
    if (!listening) {
        // Still the only instance; later starts find the lock and leave, though they cannot raise this one.
        if (m_listener >= 0)
            ::close(m_listener);
        m_listener = -1;
        return true;
    }
    m_notifier = new QSocketNotifier(m_listener, QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, &SingleInstance::acceptPeer);
    return true;
}

void SingleInstance::acceptPeer()
{
    for (int peer; (peer = ::accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC)) >= 0;) {
        ::close(peer);
        emit raiseRequested();
    }
}
