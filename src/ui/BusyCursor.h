// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QGuiApplication>

// Shows the wait cursor for as long as it lives.
class BusyCursor
{
public:
    BusyCursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~BusyCursor() { QGuiApplication::restoreOverrideCursor(); }
    BusyCursor(const BusyCursor&) = delete;
    BusyCursor& operator=(const BusyCursor&) = delete;
};
