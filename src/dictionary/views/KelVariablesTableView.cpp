// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/views/KelVariablesTableView.h"

#include "app/messages/Messages.h"
#include "dictionary/mirror/TKpEntity.h"
#include "dictionary/mirror/TKpVariable.h"
#include "dictionary/views/RowMetrics.h"
#include "dictionary/views/VariableCellDelegate.h"
#include "dictionary/views/VariableDiccionaryModel.h"
#include "dictionary/views/VariablesContextMenu.h"
#include "dictionary/views/VariablesDictionaryProxyModel.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QScopedValueRollback>
#include <QSet>

#include <algorithm>

namespace {

const QString headerStyle = QStringLiteral("QHeaderView { font-weight: 600; }");

constexpr int rowsMeasured = 200; ///< for the width of a column
constexpr int widestColumn = 24;  ///< characters, label apart

} // namespace

KelVariablesTableView::KelVariablesTableView(QWidget* parent)
    : VariablesExtendTableView(parent), model_(new VariableDiccionaryModel(this)),
      proxy_(new VariablesDictionaryProxyModel(this)) {
    setObjectName(QStringLiteral("variableTable"));
    proxy_->setSourceModel(model_);
    setModel(proxy_);
    setItemDelegate(new VariableCellDelegate(this));
    setUpLook();
    followFont();
    connectOwnSignals();
    connectModels();
    retranslate();
}

void KelVariablesTableView::setUpLook() {
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setEditTriggers(QAbstractItemView::NoEditTriggers); // F2 and the menu edit
    setDragEnabled(true);
    setDragDropMode(QAbstractItemView::DragDrop);
    setDragDropOverwriteMode(false);
    setMouseTracking(true);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    QHeaderView* header = horizontalHeader();
    header->setStyleSheet(headerStyle);
    header->setSectionsMovable(true);
    header->setHighlightSections(false);
    header->setResizeContentsPrecision(rowsMeasured);
    header->setSectionResizeMode(VariableDiccionaryModel::LabelColumn, QHeaderView::Stretch);
    // A third click gives back the order of the dictionary, which it also begins with.
    header->setSortIndicatorClearable(true);
    setSortingEnabled(true);
    sortByColumn(-1, Qt::AscendingOrder);
}

void KelVariablesTableView::connectOwnSignals() {
    using View = KelVariablesTableView;
    connect(this, &QAbstractItemView::clicked, this, &View::on_VariableClicked);
    connect(this, &QAbstractItemView::doubleClicked, this, &View::on_VariableDoubleClick);
    connect(this, &QAbstractItemView::viewportEntered, this, &View::on_TableEntered);
    connect(this, &QAbstractItemView::entered, this, &View::on_TableEntered);
    connect(this, &View::signalKeyF2PressVariablesTableView, this, &View::on_VariableRename);
    connect(this, &View::signalKeyF3PressVariablesTableView, this, &View::on_DisplayQuickView);
    connect(this, &View::signalKeyF8PressVariablesTableView, this, &View::on_VariableProperties);
    connect(this, &View::signalKeyDeletePressVariablesTableView, this, &View::on_VariableDelete);
    connect(this, &View::signalSelectallVariablesTableView, this, &View::on_SelectAllVariables);
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this](int section) {
        if (!fitting_ && section != VariableDiccionaryModel::LabelColumn)
            ownWidths_ = true;
    });
}

void KelVariablesTableView::connectModels() {
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &KelVariablesTableView::announce);
    connect(selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &KelVariablesTableView::announce);
    connect(model_, &QAbstractItemModel::dataChanged, this, [this] { emit tableInfoChange(true); });
    const auto tellCount = [this] { emit countChanged(proxy_->rowCount(), model_->rowCount()); };
    connect(proxy_, &QAbstractItemModel::modelReset, this, tellCount);
    connect(proxy_, &QAbstractItemModel::layoutChanged, this, tellCount);
    connect(proxy_, &QAbstractItemModel::rowsInserted, this, tellCount);
    connect(proxy_, &QAbstractItemModel::rowsRemoved, this, tellCount);
}

void KelVariablesTableView::setEntity(const std::shared_ptr<TKpEntity>& root, TKpEntity* entity) {
    const TKpEntity* before = model_->entity();
    const bool isSame = before != nullptr && entity != nullptr && before->name == entity->name;
    const Kept kept = isSame ? keepSelection() : Kept();
    announced_ = nullptr;
    // The old tree stays until nothing of it is shown any more.
    const std::shared_ptr<TKpEntity> old = model_->root();
    if (old != root)
        model_->setRoot(root);
    model_->setEntity(entity);
    if (!isSame && !ownWidths_)
        fitColumns();
    restoreSelection(kept);
}

void KelVariablesTableView::selectVariable(const QString& name) {
    restoreSelection({name, 0, {name}});
    if (currentIndex().isValid())
        scrollTo(currentIndex());
}

TKpVariable* KelVariablesTableView::variableAt(const QModelIndex& index) const {
    return index.isValid() ? model_->variableAt(proxy_->mapToSource(index).row()) : nullptr;
}

TKpVariable* KelVariablesTableView::currentVariable() const {
    const QModelIndex index = currentIndex();
    return index.isValid() && selectionModel()->isRowSelected(index.row()) ? variableAt(index)
                                                                           : nullptr;
}

QList<TKpVariable*> KelVariablesTableView::selectedVariables() const {
    QModelIndexList rows = selectionModel()->selectedRows();
    std::sort(rows.begin(), rows.end());
    QList<TKpVariable*> variables;
    for (const QModelIndex& row : rows)
        variables.append(variableAt(row));
    return variables;
}

KelVariablesTableView::Kept KelVariablesTableView::keepSelection() const {
    Kept kept;
    if (const TKpVariable* current = currentVariable())
        kept.current = current->name;
    kept.column = std::max(0, currentIndex().column());
    for (const TKpVariable* variable : selectedVariables())
        kept.selected += variable->name;
    return kept;
}

/// The current one comes last, so that it is told of only once all are selected.
void KelVariablesTableView::restoreSelection(const Kept& kept) {
    const QSet<QString> names(kept.selected.begin(), kept.selected.end());
    QItemSelection selection;
    QModelIndex current;
    for (int row = 0; !names.isEmpty() && row < proxy_->rowCount(); ++row) {
        const QModelIndex index = proxy_->index(row, 0);
        const TKpVariable* variable = variableAt(index);
        if (!names.contains(variable->name))
            continue;
        if (!selection.isEmpty() && selection.last().bottom() == row - 1)
            selection.last() = QItemSelectionRange(selection.last().topLeft(), index);
        else
            selection.append(QItemSelectionRange(index));
        if (variable->name == kept.current)
            current = proxy_->index(row, kept.column);
    }
    selectionModel()->select(selection,
                             QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    if (current.isValid())
        selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
}

/// The selection is told of before the current row is: both end here, and the one that completes
/// the picture counts.
void KelVariablesTableView::announce() {
    TKpVariable* variable = currentVariable();
    if (variable == nullptr || variable == announced_)
        return;
    announced_ = variable;
    emit selectedItem(variable);
}

void KelVariablesTableView::mousePressEvent(QMouseEvent* event) {
    announced_ = nullptr;
    VariablesExtendTableView::mousePressEvent(event);
}

void KelVariablesTableView::on_VariableClicked(const QModelIndex&) {
    announce();
}

void KelVariablesTableView::on_VariableDoubleClick(const QModelIndex& index) {
    if (TKpVariable* variable = variableAt(index))
        emit variableDoubleClicked(variable);
}

void KelVariablesTableView::on_VariableRename() {
    const TKpVariable* variable = currentVariable();
    if (variable == nullptr)
        return;
    if (currentIndex().column() == VariableDiccionaryModel::NameColumn && !variable->local)
        Validate::showMessage(Validate::NotLocal, variable->fullName);
    else
        edit(currentIndex());
}

/// The menu means the variable, not the cell that was pointed at; what is selected stays.
void KelVariablesTableView::editName() {
    const QModelIndex name = currentIndex().siblingAtColumn(VariableDiccionaryModel::NameColumn);
    if (!name.isValid())
        return;
    selectionModel()->setCurrentIndex(name, QItemSelectionModel::NoUpdate);
    scrollTo(name);
    on_VariableRename();
}

void KelVariablesTableView::on_VariableProperties() {
    if (currentVariable() != nullptr)
        emit signalShowVariablesProperties();
}

void KelVariablesTableView::on_DisplayQuickView() {
    if (TKpVariable* variable = currentVariable())
        emit quickViewRequested(variable);
}

void KelVariablesTableView::on_VariableDelete() {
    const QList<TKpVariable*> variables = selectedVariables();
    if (variables.isEmpty())
        return;
    const bool allLocal = std::all_of(variables.begin(), variables.end(),
                                      [](const TKpVariable* variable) { return variable->local; });
    if (!allLocal)
        showInformation(variableNotDeletable());
    else if (confirmVariableDeletion())
        deleteVariables();
}

void KelVariablesTableView::deleteVariables() {
    showInformation(tr("EN CONSTRUCCION- Se debe establecer si es posible borrar y el proceso a "
                       "seguir"));
}

void KelVariablesTableView::on_SelectAllVariables() {
    selectAll();
}

void KelVariablesTableView::on_FilterEntered(const QString& text) {
    const Kept kept = keepSelection();
    proxy_->setFilterText(text);
    restoreSelection(kept);
    if (currentIndex().isValid())
        scrollTo(currentIndex());
}

void KelVariablesTableView::on_TableEntered() {
    emit tableViewEntered();
}

void KelVariablesTableView::contextMenuEvent(QContextMenuEvent* event) {
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    on_ContextMenuRequested(byKey ? visualRect(currentIndex()).bottomLeft() : event->pos());
    event->accept();
}

void KelVariablesTableView::on_ContextMenuRequested(const QPoint& position) {
    TKpVariable* current = currentVariable();
    if (current == nullptr)
        return;
    auto* menu = new VariablesContextMenu(model_->root(), selectedVariables(), current, this);
    using Menu = VariablesContextMenu;
    using View = KelVariablesTableView;
    connect(menu, &Menu::signalQuickView, this, &View::on_DisplayQuickView);
    connect(menu, &Menu::signalShowProperties, this, &View::on_VariableProperties);
    connect(menu, &Menu::signalRename, this, &View::editName);
    connect(menu, &Menu::signalDelete, this, &View::deleteVariables);
    connect(menu, &Menu::signalSelectAll, this, &View::on_SelectAllVariables);
    connect(menu, &Menu::executeProgram, this, &View::executeProgram);
    menu->popup(viewport()->mapToGlobal(position));
}

void KelVariablesTableView::fitColumns() {
    const QScopedValueRollback fitting(fitting_, true);
    const int widest = widestColumn * fontMetrics().averageCharWidth();
    for (int column = 0; column < VariableDiccionaryModel::ColumnCount; ++column) {
        if (column == VariableDiccionaryModel::LabelColumn)
            continue;
        resizeColumnToContents(column);
        setColumnWidth(column, std::min(columnWidth(column), widest));
    }
}

void KelVariablesTableView::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    if (event->type() == QEvent::FontChange)
        followFont();
    VariablesExtendTableView::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        // A style sheet keeps the colours of the time when it was set.
        horizontalHeader()->setStyleSheet(QString());
        horizontalHeader()->setStyleSheet(headerStyle);
    }
}

void KelVariablesTableView::followFont() {
    setIconSize(viewIconSize(fontMetrics()));
    verticalHeader()->setDefaultSectionSize(viewRowHeight(fontMetrics()));
    horizontalHeader()->setMinimumSectionSize(6 * fontMetrics().averageCharWidth());
}

void KelVariablesTableView::retranslate() {
    setAccessibleName(tr("Variables"));
    model_->retranslate();
    proxy_->sort(proxy_->sortColumn(), proxy_->sortOrder()); // languages order differently
    if (!ownWidths_)                                         // new titles need new widths
        fitColumns();
}
