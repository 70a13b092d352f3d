// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/views/VariableDiccionaryModel.h"

#include "app/widgets/RowIcon.h"
#include "dictionary/mirror/DictionaryEdit.h"
#include "dictionary/mirror/TKpEntity.h"
#include "dictionary/mirror/TKpVariable.h"
#include "dictionary/views/DraggedItems.h"

#include <QDir>
#include <QGuiApplication>
#include <QMimeData>
#include <QPalette>

#include <algorithm>
#include <limits>

namespace {

constexpr qlonglong largestTag = 9999;
constexpr int unsetTag = -1;

/// Texts come from files: taken as they are, never as rich text.
QString toolTip(const TKpVariable& variable) {
    const auto line = [](const QString& frame, const QString& text) {
        return frame.arg(text.toHtmlEscaped());
    };
    QStringList lines{line(QStringLiteral("<b>%1</b>"), variable.fullName)};
    if (!variable.label.isEmpty())
        lines += variable.label.toHtmlEscaped();
    lines += line(VariableDiccionaryModel::tr("Type: %1"), variable.typeName);
    if (!variable.alias.isEmpty())
        lines += line(VariableDiccionaryModel::tr("Alias: %1"), variable.alias);
    if (variable.isFileMissing())
        lines += line(VariableDiccionaryModel::tr("File not found: %1"),
                      QDir::toNativeSeparators(variable.path));
    return lines.join(QStringLiteral("<br>"));
}

QString typeIcon(const QString& type) {
    if (type == QLatin1String("INTEGER"))
        return QStringLiteral("48px-Variable-integer");
    if (type == QLatin1String("REAL"))
        return QStringLiteral("48px-Variable-decimal");
    if (type == QLatin1String("BOOL") || type == QLatin1String("BOOLEAN"))
        return QStringLiteral("48px-Variable-bool");
    return QStringLiteral("48px-Project-preferences");
}

QString textIcon(const TKpVariable& variable, const TKpEntity* entity) {
    if (entity != nullptr && !variable.name.isEmpty()) {
        if (variable.name == entity->refCode)
            return QStringLiteral("48px-Entity-code");
        if (variable.name == entity->weightVar)
            return QStringLiteral("48px-Entity-weight");
        if (variable.name == entity->refLabel)
            return QStringLiteral("48px-Entity-label");
    }
    return QStringLiteral("48px-Variable-string");
}

Validate::Field fieldOf(int column) {
    switch (column) {
    case VariableDiccionaryModel::NameColumn:
        return Validate::Field::Name;
    case VariableDiccionaryModel::AliasColumn:
        return Validate::Field::Alias;
    default:
        return Validate::Field::Group;
    }
}

void store(TKpVariable& variable, int column, const QString& text) {
    switch (column) {
    case VariableDiccionaryModel::NameColumn:
        return DictionaryEdit::setName(variable, text);
    case VariableDiccionaryModel::AliasColumn:
        return DictionaryEdit::setAlias(variable, text);
    case VariableDiccionaryModel::GroupColumn:
        return DictionaryEdit::setGroup(variable, text);
    default:
        return DictionaryEdit::setLabel(variable, text);
    }
}

} // namespace

VariableDiccionaryModel::VariableDiccionaryModel(QObject* parent, TKpEntity* entity,
                                                 std::shared_ptr<TKpEntity> root, int tagWidth)
    : QAbstractItemModel(parent), root_(std::move(root)), tagWidth_(tagWidth) {
    setEntity(entity);
}

void VariableDiccionaryModel::setRoot(std::shared_ptr<TKpEntity> root) {
    beginResetModel();
    entity_ = nullptr;
    variables_.clear();
    root_ = std::move(root);
    endResetModel();
}

void VariableDiccionaryModel::setEntity(TKpEntity* entity) {
    beginResetModel();
    entity_ = entity;
    variables_ = entity == nullptr ? QList<TKpVariable*>() : entity->variables;
    endResetModel();
}

TKpVariable* VariableDiccionaryModel::variableAt(int row) const {
    return row >= 0 && row < variables_.size() ? variables_[row] : nullptr;
}

int VariableDiccionaryModel::rowOf(const TKpVariable* variable) const {
    const auto found = std::find(variables_.begin(), variables_.end(), variable);
    return found != variables_.end() ? static_cast<int>(found - variables_.begin()) : -1;
}

void VariableDiccionaryModel::refresh(const TKpVariable* variable) {
    const int row = rowOf(variable);
    if (row >= 0)
        emit dataChanged(index(row, 0), index(row, ColumnCount - 1));
}

void VariableDiccionaryModel::retranslate() {
    emit headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
}

QString VariableDiccionaryModel::iconName(const TKpVariable& variable, const TKpEntity* entity) {
    const QString type = variable.typeName.trimmed().toUpper();
    QString name;
    if (variable.local)
        name = QStringLiteral("48px-Project-save");
    else if (type != QLatin1String("STRING"))
        name = typeIcon(type);
    else
        name = textIcon(variable, entity);
    return QStringLiteral(":/icons/res/icons/%1.png").arg(name);
}

QModelIndex VariableDiccionaryModel::index(int row, int column, const QModelIndex& parent) const {
    return hasIndex(row, column, parent) ? createIndex(row, column) : QModelIndex();
}

QModelIndex VariableDiccionaryModel::parent(const QModelIndex&) const {
    return {};
}

int VariableDiccionaryModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(variables_.size());
}

int VariableDiccionaryModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

QString VariableDiccionaryModel::cell(const TKpVariable& variable, int column) const {
    switch (column) {
    case NameColumn:
        return variable.name;
    case AliasColumn:
        return variable.alias;
    case GroupColumn:
        return variable.group;
    case LabelColumn:
        return variable.label;
    default:
        // Without a tag the cell is blank: "-001" in every row would meet every search for a 1.
        return variable.tag == unsetTag
                   ? QString()
                   : QStringLiteral("%1").arg(variable.tag, tagWidth_, 10, QChar(u'0'));
    }
}

QIcon VariableDiccionaryModel::icon(const TKpVariable& variable) const {
    const QString name = iconName(variable, entity_);
    auto found = icons_.find(name);
    if (found == icons_.end())
        found = icons_.insert(name, rowIcon(name));
    return *found;
}

QVariant VariableDiccionaryModel::data(const QModelIndex& index, int role) const {
    const TKpVariable* variable = index.isValid() ? variableAt(index.row()) : nullptr;
    if (variable == nullptr)
        return {};
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return cell(*variable, index.column());
    case Qt::DecorationRole:
        return index.column() == NameColumn ? icon(*variable) : QVariant();
    case Qt::ToolTipRole:
        return toolTip(*variable);
    case Qt::ForegroundRole:
        // Without its file a variable can be read about, but not counted.
        if (variable->isFileMissing())
            return QGuiApplication::palette().brush(QPalette::PlaceholderText);
        return {};
    default:
        return {};
    }
}

bool VariableDiccionaryModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    TKpVariable* variable = index.isValid() ? variableAt(index.row()) : nullptr;
    if (variable == nullptr || role != Qt::EditRole)
        return false;
    const QString text = value.toString();
    // What an editor gives back untouched is no change, whatever the rules say of it.
    if (text == cell(*variable, index.column()))
        return true;
    const bool stored = index.column() == TagColumn ? setTag(*variable, text)
                                                    : setText(*variable, index.column(), text);
    if (stored) // its place in the entity may show in the icon of the name
        emit dataChanged(index.siblingAtColumn(NameColumn), index.siblingAtColumn(TagColumn));
    return stored;
}

bool VariableDiccionaryModel::setText(TKpVariable& variable, int column, const QString& text) {
    if (column != LabelColumn) {
        const NameVerdict verdict = Validate::check(root_.get(), variable, fieldOf(column), text);
        if (!verdict.isFine()) {
            Validate::showMessage(verdict.code, verdict.name);
            return false;
        }
    }
    store(variable, column, text);
    return true;
}

bool VariableDiccionaryModel::setTag(TKpVariable& variable, const QString& text) {
    bool isNumber = text.trimmed().isEmpty();
    const qlonglong tag = isNumber ? unsetTag : text.toLongLong(&isNumber);
    if (!isNumber)
        return false;
    const qlonglong smallest = std::numeric_limits<int>::min();
    DictionaryEdit::setTag(variable, static_cast<int>(std::clamp(tag, smallest, largestTag)));
    return true;
}

QVariant VariableDiccionaryModel::headerData(int section, Qt::Orientation orientation,
                                             int role) const {
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return QVariant(Qt::AlignLeft | Qt::AlignVCenter);
    if (role != Qt::DisplayRole)
        return {};
    const QStringList titles{tr("Name"), tr("Alias"), tr("Group"), tr("Label"), tr("Tag")};
    return titles.value(section);
}

Qt::ItemFlags VariableDiccionaryModel::flags(const QModelIndex& index) const {
    if (!index.isValid())
        return Qt::NoItemFlags;
    // With drop, as laid down, though no action of it is supported.
    return QAbstractItemModel::flags(index) | Qt::ItemIsEditable | Qt::ItemIsDragEnabled |
           Qt::ItemIsDropEnabled;
}

QStringList VariableDiccionaryModel::mimeTypes() const {
    return {draggedItemsType()};
}

QMimeData* VariableDiccionaryModel::mimeData(const QModelIndexList& indexes) const {
    QList<TKpVariable*> variables;
    std::vector<bool> taken(static_cast<std::size_t>(variables_.size()));
    for (const QModelIndex& index : indexes) {
        TKpVariable* variable = variableAt(index.row());
        if (variable == nullptr || taken[static_cast<std::size_t>(index.row())])
            continue;
        taken[static_cast<std::size_t>(index.row())] = true;
        variables.append(variable);
    }
    return variables.isEmpty() ? nullptr : dragData(variables);
}

Qt::DropActions VariableDiccionaryModel::supportedDragActions() const {
    return Qt::CopyAction;
}

Qt::DropActions VariableDiccionaryModel::supportedDropActions() const {
    return Qt::IgnoreAction;
}
