// SPDX-License-Identifier: GPL-3.0-or-later
// The report of a result table as a page of HTML, whole or in slices of rows.
#pragma once

#include "results/exports/ColumnBlock.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <utility>

class TableBase;

/// Valid as long as the table and until its next change.
class HtmlReport {
public:
    explicit HtmlReport(const TableBase& table);

    qsizetype rows() const;
    qsizetype columns() const { return columns_; }
    /// Those with something in these columns.
    int headerRows(const ColumnBlock& block) const;
    /// The rows from first up to end under the header of the table, of these columns. The first
    /// slice of the first columns opens with the facts; the last of the last ones closes with what
    /// was suppressed.
    QString slice(qsizetype first, qsizetype end, const ColumnBlock& block) const;
    QString whole() const { return slice(0, rows(), {0, 0, columns_}); }

private:
    QString facts() const;
    QString variables() const;
    QString header(const ColumnBlock& block) const;
    QList<int> headerRowsAbove(const ColumnBlock& block) const;
    QString row(qsizetype row, const ColumnBlock& block) const;

    const TableBase* table_;
    qsizetype columns_;
    QList<QStringList> headerTexts_;
    QList<QList<std::pair<int, int>>> headerSpans_;
    QList<QList<std::pair<int, int>>> headerPositions_;
    QList<int> alignments_;
    QList<quint8> totals_;
};
