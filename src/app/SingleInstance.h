// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>

class QSocketNotifier;

// One running Wanderkit per user: the first start takes an exclusive lock on a file beside a local
// socket and listens on the socket; a later start finds the lock taken, asks the holder to come to the
// front and leaves. Only the lock holder ever binds or removes the socket, so two starts at the same
// moment never both run and an instance never removes a socket another one owns.
class SingleInstance final : public QObject
{
    Q_OBJECT

public:
    static constexpr const char* SocketName = "{Wanderkit-91F5D741-4E63-4642-A05A-E4AC57871578}";

    explicit SingleInstance(QObject* parent = nullptr);
    ~SingleInstance() override;

    // The socket's path: in $XDG_RUNTIME_DIR, else in a private folder of the user's under /tmp.
    static QString socketPath();
    // The lock file beside it.
    static QString lockPath();
    // True when this is the only instance (it now listens); false when another one was asked to come
    // forward.
    bool claim();

signals:
    void raiseRequested();

private:
    void acceptPeer();

    int m_lock = -1;
    int m_listener = -1;
    QSocketNotifier* m_notifier = nullptr;
};
