// SPDX-License-Identifier: GPL-3.0-or-later
// Names of sheets that programs accept and that no other sheet of the workbook has.
#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

class SheetNames {
public:
    explicit SheetNames(const QStringList& taken = {});

    /// The name made acceptable: without the characters that names can't have, 31 at most. With
    /// " (2)" and so on behind it where another sheet has it.
    QString takeNumbered(const QString& name);
    /// The name made acceptable, or the next "Sheet1", "Sheet2" where another sheet has it.
    QString takeOrDefault(const QString& name);

private:
    QString take(const QString& name);
    bool isFree(const QString& name) const;

    QSet<QString> taken_; ///< case folded
    int count_ = 0;
};
