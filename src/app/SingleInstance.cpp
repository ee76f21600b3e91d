// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/SingleInstance.h"

#include <QDir>
#include <QFileInfo>
#include <QLocalServer>
#include <QLocalSocket>

#include <sys/stat.h>
#include <unistd.h>

namespace {

bool askRunningInstance(const QString& path)
{
    QLocalSocket socket;
    socket.connectToServer(path);
    if (!socket.waitForConnected(1000))
        return false;
    socket.write("raise\n");
    socket.waitForBytesWritten(1000);
    socket.disconnectFromServer();
    return true;
}

} // namespace

SingleInstance::SingleInstance(QObject* parent)
    : QObject(parent)
{ }

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

bool SingleInstance::claim()
{
    const QString path = socketPath();
    if (askRunningInstance(path))
        return false;
    // Nobody answers: a socket file left by a crashed instance is stale.
    QLocalServer::removeServer(path);
    m_server = new QLocalServer(this);
    m_server->setSocketOptions(QLocalServer::UserAccessOption);
    if (!m_server->listen(path))
        return !askRunningInstance(path);
    connect(m_server, &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket* peer = m_server->nextPendingConnection()) {
            connect(peer, &QLocalSocket::disconnected, peer, &QObject::deleteLater);
            emit raiseRequested();
        }
    });
    return true;
}
