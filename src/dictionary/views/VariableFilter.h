// SPDX-License-Identifier: GPL-3.0-or-later
// Sorts the variables table and shows the rows that hold a text in name, label or group.
#pragma once

#include <QSortFilterProxyModel>

class VariableFilter : public QSortFilterProxyModel {
    Q_OBJECT

public:
    explicit VariableFilter(QObject* parent = nullptr);
    void setText(const QString& text);

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

private:
    QString text_;
};
