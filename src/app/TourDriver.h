// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QSet>
#include <QString>

class DeviceWindow;
class Screen;
class ServicesApp;

// Walks through every screen that exists, saving each as DIR/<screen name>.png (the whole device
// window) and, rotated, as DIR/<screen name>-landscape.png, then leaves the program by "Exit".
class TourDriver final : public QObject
{
    Q_OBJECT

public:
    TourDriver(DeviceWindow& window, ServicesApp& launcher, QString folder);

    // The pictures written so far.
    const QStringList& written() const { return m_written; }
    bool failed() const { return m_failed; }

private:
    void visit(Screen& screen);
    void capture(const Screen& screen);
    void save(const QString& file);
    void nextService();

    DeviceWindow& m_window;
    ServicesApp& m_launcher;
    QString m_folder;
    int m_nextService = 0;
    QSet<Screen*> m_visited;
    QStringList m_written;
    bool m_failed = false;
};
