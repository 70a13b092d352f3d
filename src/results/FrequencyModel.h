// SPDX-License-Identifier: GPL-3.0-or-later
// A frequency as rows of code, label, count and percent.
#pragma once

#include "results/FrequencyTable.h"

#include <QAbstractTableModel>

class FrequencyModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { CodeColumn, LabelColumn, CountColumn, PercentColumn, ColumnCount };

    using QAbstractTableModel::QAbstractTableModel;

    void setTable(const FrequencyTable& table);
    const FrequencyTable& table() const { return table_; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QString cell(const FrequencyRow& row, int column) const;

    FrequencyTable table_;
};
