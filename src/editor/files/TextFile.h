// SPDX-License-Identifier: GPL-3.0-or-later
// Reads and writes program files: UTF-8 text with line feeds inside the program.
#pragma once

#include <QByteArray>
#include <QString>

class QTextDocument;

struct TextFileResult {
    bool succeeded = false;
    QString text;           ///< what was read
    QString error;          ///< the device's words
    QByteArray fingerprint; ///< of what the file holds now, for FileWatch; empty after a failure
};

/// A byte order mark is dropped, "\r\n" becomes "\n". Bytes that are no UTF-8 fail, so that saving
/// cannot lose them; so does a file beyond 256 MB.
TextFileResult readTextFile(const QString& path);
/// Whole or not at all. A link is followed, and the permissions of the file stay.
TextFileResult writeTextFile(const QString& path, const QString& text);
/// What a file keeps of a document. Unlike toPlainText(), it leaves hard blanks as they are.
QString textOf(const QTextDocument& document);
