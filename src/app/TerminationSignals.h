// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class QSocketNotifier;

// SIGTERM, SIGINT and SIGHUP (a shutdown, a logout, Ctrl+C in a terminal) reported on the event loop, so
// that the program can end as "Exit" does and every open screen saves its settings. The handler only
// writes a byte to a socket pair; the notifier on its other end emits `requested`.
class TerminationSignals final : public QObject
{
    Q_OBJECT

public:
    explicit TerminationSignals(QObject* parent = nullptr);
    // Puts the default handlers back.
    ~TerminationSignals() override;

signals:
    void requested();

private:
    void drain();

    QSocketNotifier* m_notifier = nullptr;
};
