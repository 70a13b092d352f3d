// SPDX-License-Identifier: GPL-3.0-or-later
// Reads and writes files that hold one JSON object, as settings, projects, selections and maps do.
#pragma once

#include <QJsonObject>
#include <QString>

/// Files above this are refused unread.
constexpr qint64 largestJsonFile = 256LL * 1024 * 1024; // bytes

struct JsonReading {
    QJsonObject object;
    QString fault;        ///< what to tell the user; empty where the object holds anything
    bool damaged = false; ///< the file has content that is no JSON object
};

/// Reads without telling anyone. A file that cannot be opened reads as one without content.
JsonReading parseJsonFile(const QString& path);

/// Reads, and shows what is wrong in the error box. The object is empty then.
QJsonObject readJsonFile(const QString& path);

/// Writes the object indented; the old file stays until the new one is whole. False, after a
/// message, where that fails.
bool writeJsonFile(const QString& path, const QJsonObject& object);
