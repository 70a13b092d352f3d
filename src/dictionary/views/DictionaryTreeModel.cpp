// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/views/DictionaryTreeModel.h"

#include "app/widgets/RowIcon.h"
#include "dictionary/mirror/TKpEntity.h"
#include "dictionary/views/DraggedItems.h"

#include <QDir>
#include <QLocale>
#include <QMimeData>

#include <algorithm>
#include <utility>

namespace {

/// Labels come from files: taken as they are, never as rich text.
QString toolTip(const TKpEntity& entity) {
    QStringList lines{entity.name.toHtmlEscaped()};
    if (!entity.label.isEmpty())
        lines[0] = QStringLiteral("<b>%1</b> %2").arg(lines[0], entity.label.toHtmlEscaped());
    const QString path = QDir::toNativeSeparators(entity.fullPath).toHtmlEscaped();
    if (entity.isFileMissing()) {
        lines += DictionaryTreeModel::tr("File not found: %1").arg(path);
    } else {
        if (!entity.fileName.isEmpty())
            lines += DictionaryTreeModel::tr("File: %1").arg(path);
        lines +=
            DictionaryTreeModel::tr("Records: %1").arg(QLocale().toString(entity.instanceCount));
    }
    lines +=
        DictionaryTreeModel::tr("Variables: %1").arg(QLocale().toString(entity.variables.size()));
    return lines.join(QStringLiteral("<br>"));
}

} // namespace

DictionaryTreeModel::DictionaryTreeModel(QObject* parent)
    : QAbstractItemModel(parent),
      icon_(rowIcon(QStringLiteral(":/icons/res/icons/48px-Entity.png"))),
      rootIcon_(rowIcon(QStringLiteral(":/icons/res/icons/48px-Entity-root.png"))),
      missingIcon_(rowIcon(QStringLiteral(":/icons/res/icons/48px-Missing.png"))) {}

void DictionaryTreeModel::setRoot(std::shared_ptr<TKpEntity> root) {
    beginResetModel();
    const std::shared_ptr<TKpEntity> old = std::exchange(root_, std::move(root));
    places_.clear();
    if (root_) {
        places_.insert(root_.get(), {});
        addPlaces(root_.get());
    }
    endResetModel();
}

void DictionaryTreeModel::addPlaces(TKpEntity* entity) {
    for (int row = 0; row < entity->children.size(); ++row) {
        places_.insert(entity->children[row], {entity, row});
        addPlaces(entity->children[row]);
    }
}

TKpEntity* DictionaryTreeModel::entityAt(const QModelIndex& index) const {
    return index.isValid() ? static_cast<TKpEntity*>(index.internalPointer()) : nullptr;
}

QModelIndex DictionaryTreeModel::indexOf(const TKpEntity* entity) const {
    const auto place = places_.constFind(entity);
    if (place == places_.constEnd())
        return {};
    return createIndex(place->row, 0, const_cast<TKpEntity*>(entity));
}

QModelIndex DictionaryTreeModel::indexOf(const QString& name) const {
    const auto found = std::find_if(places_.keyBegin(), places_.keyEnd(),
                                    [&](const TKpEntity* entity) { return entity->name == name; });
    return found != places_.keyEnd() ? indexOf(*found) : QModelIndex();
}

void DictionaryTreeModel::refresh(const TKpEntity* entity) {
    const QModelIndex changed = indexOf(entity);
    if (changed.isValid())
        emit dataChanged(changed, changed);
}

void DictionaryTreeModel::retranslate() {
    emit headerDataChanged(Qt::Horizontal, 0, 0);
}

QModelIndex DictionaryTreeModel::index(int row, int column, const QModelIndex& parent) const {
    if (!hasIndex(row, column, parent))
        return {};
    const TKpEntity* above = entityAt(parent);
    return createIndex(row, column, above == nullptr ? root_.get() : above->children[row]);
}

QModelIndex DictionaryTreeModel::parent(const QModelIndex& index) const {
    const TKpEntity* entity = entityAt(index);
    return entity == nullptr ? QModelIndex() : indexOf(places_.value(entity).parent);
}

int DictionaryTreeModel::rowCount(const QModelIndex& parent) const {
    if (parent.column() > 0)
        return 0;
    if (const TKpEntity* entity = entityAt(parent))
        return static_cast<int>(entity->children.size());
    return root_ ? 1 : 0;
}

int DictionaryTreeModel::columnCount(const QModelIndex&) const {
    return 1;
}

QVariant DictionaryTreeModel::data(const QModelIndex& index, int role) const {
    const TKpEntity* entity = entityAt(index);
    if (entity == nullptr || index.column() != 0)
        return {};
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return entity->name;
    case Qt::DecorationRole:
        if (entity->isFileMissing())
            return missingIcon_;
        return entity == root_.get() ? rootIcon_ : icon_;
    case Qt::ToolTipRole:
        return toolTip(*entity);
    case Qt::AccessibleDescriptionRole:
        return entity->label;
    default:
        return {};
    }
}

QVariant DictionaryTreeModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Horizontal && section == 0 && role == Qt::DisplayRole)
        return tr("Entity");
    return {};
}

Qt::ItemFlags DictionaryTreeModel::flags(const QModelIndex& index) const {
    if (!index.isValid())
        return Qt::NoItemFlags;
    return QAbstractItemModel::flags(index) | Qt::ItemIsSelectable | Qt::ItemIsEnabled |
           Qt::ItemIsDragEnabled;
}

QStringList DictionaryTreeModel::mimeTypes() const {
    return {draggedItemsType()};
}

QMimeData* DictionaryTreeModel::mimeData(const QModelIndexList& indexes) const {
    QList<TKpEntity*> entities;
    for (const QModelIndex& index : indexes)
        if (TKpEntity* entity = entityAt(index))
            entities.append(entity);
    return entities.isEmpty() ? nullptr : dragData(entities);
}

Qt::DropActions DictionaryTreeModel::supportedDragActions() const {
    return Qt::CopyAction;
}

Qt::DropActions DictionaryTreeModel::supportedDropActions() const {
    return Qt::IgnoreAction;
}
