// SPDX-License-Identifier: GPL-3.0-or-later
// Tells whether a file still holds the bytes that were read from it or written to it.
#pragma once

#include <QByteArray>
#include <QString>

/// Program files beyond this are refused unread.
constexpr qint64 largestTextFile = 256LL * 1024 * 1024; // bytes

QByteArray fingerprintOf(const QByteArray& bytes);
/// Empty where there is no file that can be read. Of one beyond largestTextFile only the size
/// counts. Never waits for a pipe.
QByteArray fingerprintOfFile(const QString& path);
