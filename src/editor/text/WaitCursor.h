// SPDX-License-Identifier: GPL-3.0-or-later
// Shows the wait cursor for as long as it lives: around work that a long text makes slow.
#pragma once

#include <QCursor>
#include <QGuiApplication>

class WaitCursor {
public:
    WaitCursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QGuiApplication::restoreOverrideCursor(); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
};
