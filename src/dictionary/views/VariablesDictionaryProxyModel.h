// SPDX-License-Identifier: GPL-3.0-or-later
// Filters and sorts the table of variables. Thousands of rows stay fluid, since what filter and
// sort compare is worked out once a cell and kept until the cell changes.
#pragma once

#include <QRegularExpression>
#include <QSortFilterProxyModel>

#include <array>
#include <memory>
#include <vector>

/// Over a VariableDiccionaryModel.
class VariablesDictionaryProxyModel : public QSortFilterProxyModel {
    Q_OBJECT

public:
    explicit VariablesDictionaryProxyModel(QObject* parent = nullptr);
    ~VariablesDictionaryProxyModel() override;

    /// Rows stay in which one of the five cells, in upper case and trimmed, holds a match of the
    /// text, in upper case and trimmed, as a regular expression. An empty one keeps all, one that
    /// is no expression none.
    void setFilterText(const QString& text);
    QString filterText() const { return text_; }

    void setSourceModel(QAbstractItemModel* model) override;
    /// Also sorts anew by the same column where the language has changed.
    void sort(int column, Qt::SortOrder order) override;
    /// Each row once, in the order in which they are shown.
    QMimeData* mimeData(const QModelIndexList& indexes) const override;

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

private:
    struct RowText;
    struct SortKey;
    class SortKeys;

    const RowText& rowText(int row) const;
    void forgetAll();
    void changeRows(const QModelIndex& topLeft, const QModelIndex& bottomRight);

    QString text_;               ///< in upper case and trimmed
    bool plain_ = true;          ///< no sign in it has a meaning in expressions
    bool matchesNothing_ = true; ///< it matches an empty cell
    QRegularExpression expression_;
    mutable std::vector<RowText> texts_;
    std::unique_ptr<SortKeys> keys_;
};
