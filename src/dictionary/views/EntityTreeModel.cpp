// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/views/EntityTreeModel.h"

#include "dictionary/mirror/TKpEntity.h"
#include "dictionary/mirror/TKpVariable.h"

#include <QLocale>

namespace {

QString toolTip(const TKpEntity& entity) {
    QStringList lines{entity.label.isEmpty() ? entity.name : entity.label};
    if (entity.isFileMissing())
        lines += EntityTreeModel::tr("File not found: %1").arg(entity.fullPath);
    if (!entity.documentation.isEmpty())
        lines += entity.documentation;
    if (!entity.weightVar.isEmpty())
        lines += EntityTreeModel::tr("Weight: %1").arg(entity.weightVar);
    lines +=
        EntityTreeModel::tr("%n variable(s)", nullptr, static_cast<int>(entity.variables.size()));
    return lines.join('\n');
}

/// Nothing where the records cannot be counted.
QString records(const TKpEntity& entity) {
    return entity.isFileMissing() ? QString() : QLocale().toString(entity.instanceCount);
}

} // namespace

void EntityTreeModel::setRoot(TKpEntity* root) {
    beginResetModel();
    root_ = root;
    places_.clear();
    if (root_ != nullptr)
        addPlaces(root_);
    endResetModel();
}

void EntityTreeModel::addPlaces(TKpEntity* entity) {
    for (int row = 0; row < entity->children.size(); ++row) {
        places_.insert(entity->children[row], {entity, row});
        addPlaces(entity->children[row]);
    }
}

TKpEntity* EntityTreeModel::entityAt(const QModelIndex& index) const {
    return index.isValid() ? static_cast<TKpEntity*>(index.internalPointer()) : nullptr;
}

QModelIndex EntityTreeModel::indexOf(const TKpEntity* entity) const {
    if (entity == nullptr)
        return {};
    return createIndex(places_.value(entity).row, 0, const_cast<TKpEntity*>(entity));
}

QModelIndex EntityTreeModel::index(int row, int column, const QModelIndex& parent) const {
    if (!hasIndex(row, column, parent))
        return {};
    const TKpEntity* above = entityAt(parent);
    return createIndex(row, column, above == nullptr ? root_ : above->children[row]);
}

QModelIndex EntityTreeModel::parent(const QModelIndex& index) const {
    const TKpEntity* entity = entityAt(index);
    return entity == nullptr ? QModelIndex() : indexOf(places_.value(entity).parent);
}

int EntityTreeModel::rowCount(const QModelIndex& parent) const {
    if (parent.column() > 0)
        return 0;
    if (const TKpEntity* entity = entityAt(parent))
        return static_cast<int>(entity->children.size());
    return root_ == nullptr ? 0 : 1;
}

int EntityTreeModel::columnCount(const QModelIndex&) const {
    return ColumnCount;
}

QVariant EntityTreeModel::data(const QModelIndex& index, int role) const {
    const TKpEntity* entity = entityAt(index);
    if (entity == nullptr)
        return {};
    const bool isName = index.column() == NameColumn;
    switch (role) {
    case Qt::DisplayRole:
        return isName ? entity->name : records(*entity);
    case Qt::DecorationRole:
        return isName ? (entity->isFileMissing() ? missingIcon_ : icon_) : QVariant();
    case Qt::TextAlignmentRole:
        return isName ? QVariant() : QVariant(Qt::AlignRight | Qt::AlignVCenter);
    case Qt::ToolTipRole:
        return toolTip(*entity);
    default:
        return {};
    }
}

QVariant EntityTreeModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole && section == RecordsColumn)
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    if (role == Qt::DisplayRole)
        return section == NameColumn ? tr("Entity") : tr("Records");
    return {};
}
