// SPDX-License-Identifier: GPL-3.0-or-later
// Writing a file so that it is there whole or not at all.
#pragma once

#include <QByteArray>
#include <QFileDevice>

/// Hands all of it to the system. False where any of it does not fit: QSaveFile::commit() alone
/// does not notice what fails with its last buffer, and would keep a file that is cut off.
bool writeThrough(QFileDevice& file, const QByteArray& content);
