// SPDX-License-Identifier: GPL-3.0-or-later
// A table style as its editor sees it, and its file.
#pragma once

#include <QJsonObject>
#include <QString>

struct TableStyleData {
    QString name = QStringLiteral("Default");
    QString label;
    int decimals = 2;
    QString thousandSep = QStringLiteral(","); ///< "," "." " " or empty
    bool showPercent = true;
    bool showCumulPercent = true;
    bool showTotal = true;
    bool showNa = true;
    bool showMv = true;
    QString rowsOrder = QStringLiteral("default"); ///< or "ascending", "descending"
    bool showNaMulti = true;
    bool showMvMulti = true;
    QString threeVarLayout = QStringLiteral("default"); ///< or "matrixByFirstVar"
    /// All that was loaded: what is not known here is saved again.
    QJsonObject file;

    bool operator==(const TableStyleData&) const = default;

    /// A key that the file lacks keeps its default. False, with a warning in the log, where the
    /// file cannot be read.
    bool load(const QString& path);
    /// False, with a warning in the log, where the file cannot be written: it is as it was.
    bool save(const QString& path) const;
    /// What was loaded holds settings that the sections have taken the place of.
    bool isOlderForm() const;
};
