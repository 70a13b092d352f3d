// SPDX-License-Identifier: GPL-3.0-or-later
// The cells of a result table, formatted as they are asked for.
#pragma once

#include "results/tables/CellFormat.h"
#include "results/tables/CellTexts.h"
#include "results/tables/ResultCell.h"

#include <QList>

#include <memory>
#include <vector>

class ResultRows;

/// One row; valid as long as its ResultRows.
class ResultRow {
public:
    ResultRow(const ResultRows& rows, qsizetype row) : rows_(&rows), row_(row) {}
    qsizetype size() const;
    ResultCell operator[](qsizetype column) const; ///< an empty cell beyond the end
    QString raw(qsizetype column) const;
    QString display(qsizetype column) const;

private:
    const ResultRows* rows_;
    qsizetype row_;
};

/// Cheap to copy: copies share their texts.
class ResultRows {
public:
    ResultRows() = default;
    /// textColumns: of codes and labels, by column. A column with a cell that is no figure joins
    /// them in alignments().
    ResultRows(std::shared_ptr<const CellTexts> texts, CellFormat format,
               std::vector<bool> textColumns);

    qsizetype size() const { return texts_ ? texts_->rows() : 0; }
    bool isEmpty() const { return size() == 0; }
    qsizetype width() const { return texts_ ? texts_->width() : 0; } ///< of the longest row
    ResultRow operator[](qsizetype row) const { return {*this, row}; }

    qsizetype columns(qsizetype row) const;
    QString raw(qsizetype row, qsizetype column) const;
    QString display(qsizetype row, qsizetype column) const;
    double value(qsizetype row, qsizetype column) const;
    ResultCell cell(qsizetype row, qsizetype column) const;
    std::string_view text(qsizetype row, qsizetype column) const; ///< raw, UTF-8

    bool isTextColumn(qsizetype column) const; ///< of codes and labels, which are no figures
    /// By column: 2 right, 1 left.
    const QList<int>& alignments() const { return alignments_; }
    /// By row: 1 for one of totals.
    const QList<quint8>& totalRows() const { return totalRows_; }
    /// A table whose cells have no value of their own gives 0.
    void setValueless() { valueless_ = true; }

private:
    FormattedCell formatted(qsizetype row, qsizetype column) const;
    void mark(qsizetype row, qsizetype column);

    std::shared_ptr<const CellTexts> texts_;
    CellFormat format_;
    std::vector<bool> textColumns_;
    QList<int> alignments_;
    QList<quint8> totalRows_;
    bool valueless_ = false;
};
