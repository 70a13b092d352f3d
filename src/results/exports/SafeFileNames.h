// SPDX-License-Identifier: GPL-3.0-or-later
// Names of the files that one export writes into a folder: made of names of tables, fit for every
// file system, no two alike.
#pragma once

#include <QSet>
#include <QString>

class SafeFileNames {
public:
    /// The name with the suffix (".csv"), and with " (2)" and so on before it where an earlier call
    /// gave the same, in capitals or not.
    QString take(const QString& name, const QString& suffix);

    /// Unsafe characters as "_"; never empty, hidden, a device of some system or too long.
    static QString safe(const QString& name);

private:
    QSet<QString> taken_;
};
