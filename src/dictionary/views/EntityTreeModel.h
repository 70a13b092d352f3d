// SPDX-License-Identifier: GPL-3.0-or-later
// The entities of the open dictionary as a tree: name and number of records.
#pragma once

#include "dictionary/views/RowIcon.h"

#include <QAbstractItemModel>

class TKpEntity;

/// Reads the mirror, which must live until the next setRoot().
class EntityTreeModel : public QAbstractItemModel {
    Q_OBJECT

public:
    enum Column { NameColumn, RecordsColumn, ColumnCount };

    using QAbstractItemModel::QAbstractItemModel;

    void setRoot(TKpEntity* root); ///< null empties the tree
    TKpEntity* entityAt(const QModelIndex& index) const;
    QModelIndex indexOf(const TKpEntity* entity) const;

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    struct Place {
        TKpEntity* parent = nullptr;
        int row = 0;
    };
    void addPlaces(TKpEntity* entity);

    const QIcon icon_ = rowIcon(QStringLiteral(":/icons/res/icons/entity.svg"));
    const QIcon missingIcon_ = rowIcon(QStringLiteral(":/icons/res/icons/missing.svg"));
    TKpEntity* root_ = nullptr;
    QHash<const TKpEntity*, Place> places_;
};
