// SPDX-License-Identifier: GPL-3.0-or-later
// The variables of one entity as a table whose cells can be edited: name, alias, group, label, tag.
#pragma once

#include "dictionary/views/Validate.h"

#include <QAbstractItemModel>
#include <QHash>
#include <QIcon>
#include <QList>

#include <memory>

class TKpEntity;
class TKpVariable;

/// Shares the mirror. Edits are checked, reach the mirror and the engine, and end in dataChanged;
/// one that is refused shows why and leaves all as it was.
class VariableDiccionaryModel : public QAbstractItemModel {
    Q_OBJECT

public:
    enum Column { NameColumn, AliasColumn, GroupColumn, LabelColumn, TagColumn, ColumnCount };
    static constexpr int usualTagWidth = 4; ///< the largest tag is 9999

    explicit VariableDiccionaryModel(QObject* parent = nullptr, TKpEntity* entity = nullptr,
                                     std::shared_ptr<TKpEntity> root = {},
                                     int tagWidth = usualTagWidth);

    /// The tree that names are compared with; shows no entity until the next setEntity().
    void setRoot(std::shared_ptr<TKpEntity> root);
    void setEntity(TKpEntity* entity); ///< one of the root's tree; null empties the table
    TKpEntity* entity() const { return entity_; }
    const std::shared_ptr<TKpEntity>& root() const { return root_; }
    TKpVariable* variableAt(int row) const;       ///< null for none
    int rowOf(const TKpVariable* variable) const; ///< -1 for none
    /// Shows what has been changed in the variable elsewhere; emits dataChanged too.
    void refresh(const TKpVariable* variable);
    void retranslate();

    /// The resource that tells the kind of the variable in its entity.
    static QString iconName(const TKpVariable& variable, const TKpEntity* entity);

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QStringList mimeTypes() const override;
    /// Each row once, in the order of the indexes.
    QMimeData* mimeData(const QModelIndexList& indexes) const override;
    Qt::DropActions supportedDragActions() const override;
    Qt::DropActions supportedDropActions() const override; ///< none

private:
    QString cell(const TKpVariable& variable, int column) const;
    QIcon icon(const TKpVariable& variable) const;
    bool setText(TKpVariable& variable, int column, const QString& text);
    bool setTag(TKpVariable& variable, const QString& text);

    std::shared_ptr<TKpEntity> root_;
    TKpEntity* entity_ = nullptr;
    QList<TKpVariable*> variables_;
    int tagWidth_;
    mutable QHash<QString, QIcon> icons_; ///< by resource, made when first shown
};
