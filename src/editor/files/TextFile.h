// SPDX-License-Identifier: GPL-3.0-or-later
// Reads and writes program files: UTF-8 text with line feeds inside the program.
#pragma once

#include <QString>

struct TextFileResult {
    bool succeeded = false;
    QString text;  ///< what was read
    QString error; ///< the device's words
};

/// A byte order mark is dropped, "\r\n" becomes "\n". Bytes that are no UTF-8 fail, so that saving
/// cannot lose them; so does a file beyond 256 MB.
TextFileResult readTextFile(const QString& path);
/// Whole or not at all.
TextFileResult writeTextFile(const QString& path, const QString& text);
