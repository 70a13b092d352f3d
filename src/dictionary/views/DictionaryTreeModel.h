// SPDX-License-Identifier: GPL-3.0-or-later
// The entities of the open dictionary as a tree of one column.
#pragma once

#include <QAbstractItemModel>
#include <QHash>
#include <QIcon>

#include <memory>

class TKpEntity;

/// Shares the mirror, so that one that is rebuilt meanwhile stays until the next setRoot().
class DictionaryTreeModel : public QAbstractItemModel {
    Q_OBJECT

public:
    explicit DictionaryTreeModel(QObject* parent = nullptr);

    void setRoot(std::shared_ptr<TKpEntity> root); ///< null empties the tree
    const std::shared_ptr<TKpEntity>& root() const { return root_; }
    TKpEntity* entityAt(const QModelIndex& index) const; ///< null for none
    QModelIndex indexOf(const TKpEntity* entity) const;
    QModelIndex indexOf(const QString& name) const; ///< exact; invalid where there is none
    /// Shows what has been changed in the entity.
    void refresh(const TKpEntity* entity);
    void retranslate();

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QStringList mimeTypes() const override;
    QMimeData* mimeData(const QModelIndexList& indexes) const override;
    Qt::DropActions supportedDragActions() const override;
    Qt::DropActions supportedDropActions() const override; ///< none

private:
    struct Place {
        TKpEntity* parent = nullptr;
        int row = 0;
    };
    void addPlaces(TKpEntity* entity);

    QIcon icon_;
    QIcon rootIcon_;
    QIcon missingIcon_;
    std::shared_ptr<TKpEntity> root_;
    QHash<const TKpEntity*, Place> places_; ///< the root's parent is null
};
