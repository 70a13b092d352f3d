// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/DictionaryBrowser.h"

#include "app/widgets/ReadOnlyTable.h"
#include "dictionary/mirror/DictionaryUtil.h"
#include "dictionary/mirror/TKpEntity.h"
#include "dictionary/mirror/TKpVariable.h"
#include "dictionary/views/EntityTreeModel.h"
#include "dictionary/views/ValueLabelModel.h"
#include "dictionary/views/VariableFilter.h"
#include "dictionary/views/VariableTableModel.h"

#include <QAction>
#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>

namespace {

QTableView* makeTable(QAbstractItemModel* model, const QString& objectName) {
    auto* table = new ReadOnlyTable(model, objectName);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->horizontalHeader()->setStretchLastSection(true);
    return table;
}

/// Rows that decide the width of a column, so that an entity of any size shows at once.
constexpr int rowsMeasured = 200;
constexpr int widestName = 36; ///< characters

/// In pre-order; the root itself where no entity has variables.
const TKpEntity* firstWithVariables(TKpEntity* root) {
    const QList<TKpEntity*> entities = DictionaryUtil().entities(root);
    const auto found = std::find_if(entities.begin(), entities.end(), [](const TKpEntity* entity) {
        return !entity->variables.isEmpty();
    });
    return found != entities.end() ? *found : root;
}

} // namespace

DictionaryBrowser::DictionaryBrowser(QWidget* parent)
    : QSplitter(Qt::Horizontal, parent), entities_(new EntityTreeModel(this)),
      variables_(new VariableTableModel(this)), filter_(new VariableFilter(this)),
      valueLabels_(new ValueLabelModel(this)) {
    setObjectName(QStringLiteral("dictionaryBrowser"));
    setChildrenCollapsible(false);
    filter_->setSourceModel(variables_);
    makeTree();
    addWidget(tree_);
    auto* right = new QSplitter(Qt::Vertical);
    right->setChildrenCollapsible(false);
    right->addWidget(makeVariablesPane());
    right->addWidget(makeValueLabelsPane());
    right->setStretchFactor(0, 3);
    right->setStretchFactor(1, 1);
    addWidget(right);
    setStretchFactor(0, 0);
    setStretchFactor(1, 1);
    const int unit = fontMetrics().averageCharWidth();
    setSizes({48 * unit, 120 * unit});
    retranslate();
}

void DictionaryBrowser::makeTree() {
    tree_ = new QTreeView;
    tree_->setObjectName(QStringLiteral("entityTree"));
    tree_->setModel(entities_);
    tree_->setUniformRowHeights(true);
    tree_->setIndentation(tree_->fontMetrics().height());
    tree_->header()->setStretchLastSection(false);
    tree_->header()->setSectionResizeMode(EntityTreeModel::NameColumn, QHeaderView::Stretch);
    tree_->header()->setSectionResizeMode(EntityTreeModel::RecordsColumn,
                                          QHeaderView::ResizeToContents);
    connect(tree_->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &DictionaryBrowser::showEntity);
}

QWidget* DictionaryBrowser::makeVariablesPane() {
    auto* pane = new QWidget;
    auto* layout = new QVBoxLayout(pane);
    layout->setContentsMargins(0, 0, 0, 0);
    heading_ = new QLabel;
    heading_->setObjectName(QStringLiteral("entityHeading"));
    heading_->setTextFormat(Qt::PlainText);
    QFont bold = heading_->font();
    bold.setBold(true);
    heading_->setFont(bold);

    filterLine_ = new QLineEdit;
    filterLine_->setObjectName(QStringLiteral("variableFilter"));
    filterLine_->setClearButtonEnabled(true);
    filterLabel_ = new QLabel;
    filterLabel_->setBuddy(filterLine_);
    count_ = new QLabel;
    count_->setObjectName(QStringLiteral("variableCount"));
    auto* row = new QHBoxLayout;
    row->addWidget(filterLabel_);
    row->addWidget(filterLine_, 1);
    row->addWidget(count_);

    table_ = makeTable(filter_, QStringLiteral("variableTable"));
    table_->setSortingEnabled(true);
    table_->sortByColumn(-1, Qt::AscendingOrder);
    table_->setContextMenuPolicy(Qt::ActionsContextMenu);
    table_->horizontalHeader()->setStretchLastSection(false);
    table_->horizontalHeader()->setResizeContentsPrecision(rowsMeasured);
    table_->horizontalHeader()->setSectionResizeMode(VariableTableModel::LabelColumn,
                                                     QHeaderView::Stretch);
    table_->horizontalHeader()->setMinimumSectionSize(5 * table_->fontMetrics().averageCharWidth());
    connect(filterLine_, &QLineEdit::textChanged, this, [this](const QString& text) {
        filter_->setText(text);
        updateCount();
    });
    connect(table_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &DictionaryBrowser::showVariable);
    connect(table_, &QTableView::activated, this, [this] {
        if (TKpVariable* variable = currentVariable())
            emit variableActivated(variable);
    });

    layout->addWidget(heading_);
    layout->addLayout(row);
    layout->addWidget(table_, 1);
    return pane;
}

QWidget* DictionaryBrowser::makeValueLabelsPane() {
    labelsPane_ = new QWidget;
    labelsPane_->setObjectName(QStringLiteral("valueLabelsPane"));
    labelsHeading_ = new QLabel;
    labelsHeading_->setTextFormat(Qt::PlainText);
    auto* layout = new QVBoxLayout(labelsPane_);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(labelsHeading_);
    labels_ = makeTable(valueLabels_, QStringLiteral("valueLabelTable"));
    labels_->setColumnWidth(ValueLabelModel::ValueColumn,
                            14 * labels_->fontMetrics().averageCharWidth());
    layout->addWidget(labels_, 1);
    return labelsPane_;
}

void DictionaryBrowser::fitColumns() {
    const int widest = widestName * table_->fontMetrics().averageCharWidth();
    for (int column = 0; column < VariableTableModel::ColumnCount; ++column) {
        if (column == VariableTableModel::LabelColumn)
            continue;
        table_->resizeColumnToContents(column);
        table_->setColumnWidth(column, std::min(table_->columnWidth(column), widest));
    }
}

void DictionaryBrowser::setRoot(TKpEntity* root) {
    valueLabels_->setVariable(nullptr);
    variables_->setEntity(nullptr);
    entities_->setRoot(root);
    filterLine_->clear();
    tree_->expandAll();
    tree_->setCurrentIndex(entities_->indexOf(firstWithVariables(root)));
    if (root == nullptr)
        showEntity({});
}

TKpVariable* DictionaryBrowser::currentVariable() const {
    const QModelIndex index = table_->currentIndex();
    return index.isValid() ? variables_->variableAt(filter_->mapToSource(index).row()) : nullptr;
}

void DictionaryBrowser::addVariableAction(QAction* action) {
    table_->addAction(action);
}

void DictionaryBrowser::showValueLabels(bool visible) {
    labelsPane_->setVisible(visible);
}

void DictionaryBrowser::focusFilter() {
    filterLine_->setFocus(Qt::ShortcutFocusReason);
    filterLine_->selectAll();
}

void DictionaryBrowser::showEntity(const QModelIndex& index) {
    const TKpEntity* entity = entities_->entityAt(index);
    variables_->setEntity(entity);
    table_->setCurrentIndex(filter_->index(0, 0));
    if (!table_->currentIndex().isValid())
        showVariable({});
    fitColumns();
    nameEntity();
    updateCount();
}

void DictionaryBrowser::showVariable(const QModelIndex&) {
    TKpVariable* variable = currentVariable();
    valueLabels_->setVariable(variable);
    nameLabels();
    emit currentVariableChanged(variable);
}

void DictionaryBrowser::nameEntity() {
    const TKpEntity* entity = entities_->entityAt(tree_->currentIndex());
    if (entity == nullptr)
        heading_->setText(tr("No dictionary is open. Choose File > Open Dictionary."));
    else
        heading_->setText(entity->label.isEmpty() ? entity->name
                                                  : entity->name + " – " + entity->label);
}

void DictionaryBrowser::nameLabels() {
    const TKpVariable* variable = currentVariable();
    labelsHeading_->setText(variable == nullptr ? tr("Value labels")
                                                : tr("Value labels of %1").arg(variable->fullName));
}

void DictionaryBrowser::updateCount() {
    count_->setText(tr("%1 of %2").arg(filter_->rowCount()).arg(variables_->rowCount()));
}

void DictionaryBrowser::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QSplitter::changeEvent(event);
}

void DictionaryBrowser::retranslate() {
    nameEntity();
    filterLabel_->setText(tr("&Filter:"));
    filterLine_->setPlaceholderText(tr("Name, label or group"));
    filterLine_->setToolTip(tr("Show the variables whose name, label or group holds this text"));
    filterLine_->setAccessibleName(tr("Filter of the variables"));
    tree_->setAccessibleName(tr("Entities"));
    table_->setAccessibleName(tr("Variables"));
    labels_->setAccessibleName(tr("Value labels"));
    // New titles need new widths.
    emit entities_->headerDataChanged(Qt::Horizontal, 0, EntityTreeModel::ColumnCount - 1);
    emit filter_->headerDataChanged(Qt::Horizontal, 0, VariableTableModel::ColumnCount - 1);
    emit valueLabels_->headerDataChanged(Qt::Horizontal, 0, ValueLabelModel::ColumnCount - 1);
    fitColumns();
    nameLabels();
    updateCount();
}
