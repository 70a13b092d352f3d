// SPDX-License-Identifier: GPL-3.0-or-later
// Adds the sheets of a new workbook to one that somebody made, which keeps all that it holds: only
// the lists of sheets, parts and formats grow.
#pragma once

#include "results/workbook/XmlPart.h"
#include "results/workbook/ZipPackage.h"

#include <QString>
#include <QStringList>

#include <functional>

class QDir;

/// Throws WorkbookError for what is no workbook, or none that sheets can be added to.
class WorkbookAppender {
public:
    /// A file that nobody else has: it is changed in place by append().
    explicit WorkbookAppender(const QString& path);

    /// Of all sheets that are there.
    QStringList sheetNames() const;
    /// newBook: written by Workbook, with sheets of these names. folder: for files in between.
    void append(const QString& newBook, const QStringList& names, const QDir& folder,
                const std::function<bool()>& goOn);

private:
    XmlPart part(const QString& name, int depth = 3) const;
    QString freePart(const QString& pattern, const QStringList& taken) const;

    QList<int> mergeStyles(const ZipPackage& ours);
    QStringList addParts(const ZipPackage& ours, const QStringList& names, const QDir& folder,
                         const QList<int>& formats, const std::function<bool()>& goOn);
    void declareParts(const QStringList& parts, bool withStyles);
    QStringList relate(const QStringList& parts, bool withStyles);
    void listSheets(const QStringList& names, const QStringList& relations);
    void listTitles(const QStringList& names);
    void change(const QString& name, const XmlPart& part);
    void checkKept(const QHash<QString, quint32>& before, const QStringList& added,
                   const QList<qint64>& cells, const std::function<bool()>& goOn) const;

    QString path_;
    ZipPackage package_;
    QString book_;   ///< the workbook's part
    QString styles_; ///< its formats; empty where it has none
    QStringList changed_;
};
