// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/views/KelTreeView.h"

#include "app/messages/Messages.h"
#include "dictionary/mirror/DictionaryUtil.h"
#include "dictionary/mirror/TKpEntity.h"
#include "dictionary/views/DictionaryTreeModel.h"
#include "dictionary/views/RowMetrics.h"
#include "dictionary/views/TreeViewContextMenu.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QMetaMethod>
#include <QStyledItemDelegate>

#include <algorithm>

namespace {

/// Rows as high as those of the table beside it.
class RoomyRows : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        QSize size = QStyledItemDelegate::sizeHint(option, index);
        return {size.width(), std::max(size.height(), viewRowHeight(option.fontMetrics))};
    }
};

} // namespace

KelTreeView::KelTreeView(QWidget* parent)
    : DictionaryExtendTreeView(parent), model_(new DictionaryTreeModel(this)) {
    setObjectName(QStringLiteral("TreeViewDictionary"));
    setModel(model_);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setDragDropMode(QAbstractItemView::DragDrop);
    setDropIndicatorShown(true);
    setUniformRowHeights(true);
    setExpandsOnDoubleClick(false); // a double click shows the entity
    setItemDelegate(new RoomyRows(this));
    setMouseTracking(true);
    header()->setSectionsMovable(false);
    connectOwnSignals();
    followFont();
    retranslate();
}

void KelTreeView::connectOwnSignals() {
    connect(this, &QAbstractItemView::clicked, this, &KelTreeView::on_Click);
    connect(this, &QAbstractItemView::doubleClicked, this, &KelTreeView::on_DoubleClick);
    connect(this, &QAbstractItemView::viewportEntered, this, &KelTreeView::on_Entered);
    connect(this, &QAbstractItemView::entered, this, &KelTreeView::on_Entered);
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &KelTreeView::on_selectionChanged);
    connect(this, &KelTreeView::f3_PressEntityTreeView, this, &KelTreeView::on_f3Pressed);
    connect(this, &KelTreeView::f8_PressEntityTreeView, this, &KelTreeView::on_f8Pressed);
    connect(this, &KelTreeView::ctrlP_PressEntityTreeView, this, &KelTreeView::on_ctrlPPressed);
}

void KelTreeView::setRoot(const std::shared_ptr<TKpEntity>& root) {
    const TKpEntity* current = currentEntity();
    const QString name = current != nullptr ? current->name : QString();
    const QStringList collapsed = collapsedNames();
    model_->setRoot(root);
    expandAll();
    for (const QString& entity : collapsed)
        if (const QModelIndex index = model_->indexOf(entity); index.isValid())
            collapse(index);
    if (!name.isEmpty())
        selectEntity(name);
}

QStringList KelTreeView::collapsedNames() const {
    QStringList names;
    for (const TKpEntity* entity : DictionaryUtil().entities(model_->root().get()))
        if (!entity->children.isEmpty() && !isExpanded(model_->indexOf(entity)))
            names += entity->name;
    return names;
}

void KelTreeView::selectEntity(const QString& name) {
    const QModelIndex index = model_->indexOf(name);
    if (!index.isValid())
        return;
    setCurrentIndex(index);
    scrollTo(index);
}

TKpEntity* KelTreeView::currentEntity() const {
    const QModelIndexList selected = selectionModel()->selectedRows();
    return selected.isEmpty() ? nullptr : model_->entityAt(selected.first());
}

void KelTreeView::on_selectionChanged() {
    TKpEntity* entity = currentEntity();
    if (entity == nullptr)
        return;
    announced_ = true;
    emit selectedEntity(entity);
}

bool KelTreeView::canPrint() const {
    return isSignalConnected(QMetaMethod::fromSignal(&KelTreeView::printRequested));
}

/// The views beside the tree always show an entity: Ctrl takes none out of the selection.
QItemSelectionModel::SelectionFlags KelTreeView::selectionCommand(const QModelIndex& index,
                                                                  const QEvent* event) const {
    const auto command = DictionaryExtendTreeView::selectionCommand(index, event);
    return command.testFlag(QItemSelectionModel::Deselect) ? QItemSelectionModel::NoUpdate
                                                           : command;
}

void KelTreeView::mousePressEvent(QMouseEvent* event) {
    announced_ = false;
    DictionaryExtendTreeView::mousePressEvent(event);
}

void KelTreeView::on_Click(const QModelIndex& index) {
    if (!announced_)
        emit selectedEntity(model_->entityAt(index));
    announced_ = false;
}

void KelTreeView::on_DoubleClick(const QModelIndex& index) {
    emit entityDoubleClicked(model_->entityAt(index));
}

void KelTreeView::on_f3Pressed(const QModelIndex& index) {
    on_quickViewEntity(model_->entityAt(index));
}

void KelTreeView::on_f8Pressed(const QModelIndex& index) {
    on_propertiesViewEntity(model_->entityAt(index));
}

void KelTreeView::on_ctrlPPressed(const QModelIndex& index) {
    on_printViewEntity(model_->entityAt(index));
}

void KelTreeView::on_quickViewEntity(TKpEntity* entity) {
    emit quickViewRequested(entity);
}

void KelTreeView::on_propertiesViewEntity(TKpEntity* entity) {
    emit propertiesRequested(entity);
}

void KelTreeView::on_printViewEntity(TKpEntity* entity) {
    emit printRequested(entity);
}

void KelTreeView::on_executeProgram(const QString& program) {
    emit executeProgram(program);
}

void KelTreeView::on_Entered() {
    emit treeViewEntered();
}

void KelTreeView::contextMenuEvent(QContextMenuEvent* event) {
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    on_ContextMenuRequested(byKey ? visualRect(currentIndex()).bottomLeft() : event->pos());
    event->accept();
}

void KelTreeView::on_ContextMenuRequested(const QPoint& position) {
    TKpEntity* entity = currentEntity();
    if (entity == nullptr) {
        showError(tr("A entity must be selected"));
        return;
    }
    auto* menu = new TreeViewContextMenu({model_->root(), entity}, canPrint(), this);
    connect(menu, &TreeViewContextMenu::quickView, this, &KelTreeView::on_quickViewEntity);
    connect(menu, &TreeViewContextMenu::propertiesView, this,
            &KelTreeView::on_propertiesViewEntity);
    connect(menu, &TreeViewContextMenu::printView, this, &KelTreeView::on_printViewEntity);
    connect(menu, &TreeViewContextMenu::executeProgram, this, &KelTreeView::on_executeProgram);
    menu->popup(viewport()->mapToGlobal(position));
}

void KelTreeView::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    if (event->type() == QEvent::FontChange)
        followFont();
    DictionaryExtendTreeView::changeEvent(event);
}

void KelTreeView::followFont() {
    setIconSize(viewIconSize(fontMetrics()));
    setIndentation(fontMetrics().height());
}

void KelTreeView::retranslate() {
    setAccessibleName(tr("Entities"));
    model_->retranslate();
}
