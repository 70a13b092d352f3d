// SPDX-License-Identifier: GPL-3.0-or-later
// Keeps a test away from the settings, recovery copies and documents of who runs it.
#pragma once

#include <QString>
#include <QTemporaryDir>

/// To be called before anything asks for the settings. Gives the folder that this process has in
/// their place; it goes with the process.
inline QString takeOwnSettings() {
    static const QTemporaryDir home;
    qputenv("HOME", home.path().toLocal8Bit());
    qputenv("XDG_DATA_HOME", home.filePath("data").toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", home.filePath("config").toLocal8Bit());
    return home.path();
}
