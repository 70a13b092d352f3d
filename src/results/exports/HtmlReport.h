// SPDX-License-Identifier: GPL-3.0-or-later
// The report of a result table as a page of HTML, whole or in slices of rows.
#pragma once

#include <QList>
#include <QString>

class TableBase;

/// Valid as long as the table and until its next change.
class HtmlReport {
public:
    explicit HtmlReport(const TableBase& table);

    qsizetype rows() const;
    int headerRows() const;
    /// The rows from first up to end under the header of the table. The first slice opens with the
    /// facts; the last closes with what was suppressed.
    QString slice(qsizetype first, qsizetype end) const;
    QString whole() const { return slice(0, rows()); }

private:
    QString facts() const;
    QString variables() const;
    QString header() const;
    QString row(qsizetype row) const;

    const TableBase* table_;
    QList<int> alignments_;
    QList<quint8> totals_;
};
