// SPDX-License-Identifier: GPL-3.0-or-later
// A result table as a model: rows of headers, then rows of cells, formatted as they are asked for.
#pragma once

#include "results/ResultHeader.h"
#include "results/tables/ResultRows.h"

#include <QAbstractTableModel>
#include <QList>

/// Roles beside those of Qt.
namespace resultrole {
inline constexpr int raw = Qt::UserRole;      ///< the cell in full precision
inline constexpr int kind = Qt::UserRole + 1; ///< a CellKind as int
} // namespace resultrole

enum class CellKind { Blank, Header, Text, Number };

/// Shares the table's cells, so that it outlives a table that is rebuilt.
class ResultModel : public QAbstractTableModel {
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    int firstHeaderRow() const { return contents_.top; }
    int firstCellRow() const { return contents_.top + contents_.header.rows(); }
    int cellRows() const { return static_cast<int>(contents_.cells.size()); }
    virtual QList<CellSpan> spans() const; ///< those of more than one cell
    /// As shown; empty where nothing stands.
    virtual QString text(int row, int column) const;
    const HeaderItem* headerAt(int row, int column) const;
    bool isHeader(int row, int column) const; ///< one begins there or spans over it
    bool isCell(int row, int column) const;   ///< of the table, below its headers

protected:
    struct Contents {
        int rows = 0;
        int columns = 0;
        int top = 0;  ///< row of the first header
        int left = 0; ///< column of the first cell
        ResultHeader header;
        ResultRows cells;
        QList<int> alignments; ///< by column: 2 right, 1 left
    };

    void setContents(Contents contents) { contents_ = std::move(contents); }
    const Contents& contents() const { return contents_; }
    virtual QString raw(int row, int column) const;
    virtual QVariant look(int row, int column, int role) const; ///< colours, fonts and the like
    CellKind kind(int row, int column) const;
    Qt::Alignment alignment(int row, int column) const;

private:
    Contents contents_;
};

/// Of a font that stands in the headers and headings of results.
QFont headingFont();
