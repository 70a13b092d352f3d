// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/properties/CategoryTable.h"

#include "dictionary/properties/VarValueLabelDiccionaryModel.h"
#include "dictionary/properties/VarValueLabelDiccionaryProxyModel.h"

#include <QAbstractItemDelegate>
#include <QClipboard>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QTableView>
#include <QVBoxLayout>

namespace {

constexpr int rowsSeen = 5;       ///< at least
constexpr int codeCharacters = 9; ///< width of the first column

QPushButton* makeButton(const char* objectName) {
    auto* button = new QPushButton;
    button->setObjectName(QLatin1String(objectName));
    button->setAutoDefault(false);
    // Two stand side by side in a narrow dock, in each language.
    button->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    return button;
}

} // namespace

CategoryTable::CategoryTable(QWidget* parent)
    : QWidget(parent), model_(new VarValueLabelDiccionaryModel(this)),
      proxy_(new VarValueLabelDiccionaryProxyModel(this)) {
    proxy_->setSourceModel(model_);
    makeTable();
    makeButtons();
    message_ = new QLabel;
    message_->setObjectName(QStringLiteral("lbCategoryMessage"));
    message_->setTextFormat(Qt::PlainText);
    message_->setWordWrap(true);
    auto* buttons = new QGridLayout;
    const QList<QPushButton*> order = {add_, copy_, paste_, remove_, clear_, undo_};
    for (int i = 0; i < order.size(); ++i)
        buttons->addWidget(order[i], i / 2, i % 2);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(table_, 1);
    layout->addWidget(message_);
    layout->addLayout(buttons);
    addKeys();
    connect(model_, &VarValueLabelDiccionaryModel::changed, this, &CategoryTable::refresh);
    connect(table_->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &CategoryTable::refresh);
    retranslate();
}

void CategoryTable::makeTable() {
    table_ = new QTableView;
    table_->setObjectName(QStringLiteral("tableCategories"));
    table_->setModel(proxy_);
    table_->setSelectionMode(QAbstractItemView::SingleSelection);
    table_->setAlternatingRowColors(true);
    table_->setTabKeyNavigation(false);
    table_->setWordWrap(false);
    table_->setSortingEnabled(true);
    table_->sortByColumn(-1, Qt::AscendingOrder);
    table_->verticalHeader()->hide();
    const int row = table_->fontMetrics().height() + 8;
    table_->verticalHeader()->setDefaultSectionSize(row);
    table_->setMinimumHeight((rowsSeen + 1) * row);
    QHeaderView* header = table_->horizontalHeader();
    header->setHighlightSections(false);
    header->setStretchLastSection(true);
    header->resizeSection(VarValueLabelDiccionaryModel::CodeColumn,
                          codeCharacters * table_->fontMetrics().averageCharWidth());
}

void CategoryTable::makeButtons() {
    add_ = makeButton("btnAdd");
    copy_ = makeButton("btnCopy");
    paste_ = makeButton("btnPaste");
    remove_ = makeButton("btnRemove");
    clear_ = makeButton("btnClear");
    undo_ = makeButton("btnUndo");
}

/// The keys press the buttons, so that both do the same. They hold in the table only: an open cell
/// has its own copy, paste and undo.
void CategoryTable::addKeys() {
    const auto key = [this](const QKeySequence& keys, QPushButton* button) {
        auto* shortcut = new QShortcut(keys, table_);
        shortcut->setContext(Qt::WidgetShortcut);
        connect(shortcut, &QShortcut::activated, button, &QPushButton::click);
    };
    key(QKeySequence::Copy, copy_);
    key(QKeySequence::Paste, paste_);
    key(QKeySequence::Undo, undo_);
    key(QKeySequence(Qt::Key_Delete), remove_);
    key(QKeySequence(Qt::Key_Insert), add_);
}

void CategoryTable::setList(const Categories::List& list, bool numeric) {
    model_->setList(list, numeric);
    ignoredLines_ = 0;
    refresh();
}

const Categories::List& CategoryTable::list() const {
    return model_->list();
}

void CategoryTable::commitEditor() {
    QAbstractItemDelegate* delegate = table_->itemDelegate();
    for (QWidget* editor :
         table_->viewport()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        // A closed editor stays hidden until it is deleted.
        if (editor->isHidden())
            continue;
        emit delegate->commitData(editor);
        emit delegate->closeEditor(editor);
    }
}

QString CategoryTable::showFirstFault() {
    const int row = model_->firstFault();
    if (row < 0)
        return {};
    select(row, VarValueLabelDiccionaryModel::CodeColumn);
    return model_->faultText(row);
}

void CategoryTable::select(int row, int column) {
    const QModelIndex index = proxy_->mapFromSource(model_->index(row, column));
    table_->setCurrentIndex(index);
    table_->scrollTo(index);
}

void CategoryTable::addRow() {
    commitEditor();
    model_->append({ValueLabelElement()});
    select(model_->rowCount() - 1, VarValueLabelDiccionaryModel::CodeColumn);
    table_->setFocus();
    table_->edit(table_->currentIndex());
}

void CategoryTable::copy() const {
    QGuiApplication::clipboard()->setText(Categories::toText(model_->list()));
}

void CategoryTable::paste() {
    commitEditor();
    model_->append(Categories::fromText(QGuiApplication::clipboard()->text(), &ignoredLines_));
    refresh();
}

void CategoryTable::removeCurrent() {
    const QModelIndex current = table_->currentIndex();
    if (!current.isValid())
        return;
    const int shownRow = current.row();
    model_->remove(proxy_->mapToSource(current).row());
    table_->setCurrentIndex(
        proxy_->index(qMin(shownRow, proxy_->rowCount() - 1), current.column()));
}

void CategoryTable::clear() {
    model_->clear();
}

void CategoryTable::undo() {
    const QModelIndex current = table_->currentIndex();
    const int row = current.row();
    const int column = current.column();
    model_->undo();
    if (row >= 0)
        table_->setCurrentIndex(proxy_->index(qMin(row, proxy_->rowCount() - 1), column));
}

void CategoryTable::refresh() {
    remove_->setEnabled(table_->currentIndex().isValid());
    clear_->setEnabled(model_->rowCount() > 0);
    undo_->setEnabled(model_->canUndo());
    const int faulty = model_->firstFault();
    QString text = faulty >= 0 ? model_->faultText(faulty) : QString();
    if (text.isEmpty() && ignoredLines_ > 0)
        text = tr("Lines of the clipboard that are no category: %1").arg(ignoredLines_);
    message_->setText(text);
    message_->setVisible(!text.isEmpty());
}

void CategoryTable::retranslate() {
    table_->setAccessibleName(tr("Variable Categories"));
    add_->setText(tr("Add"));
    copy_->setText(tr("Copy"));
    paste_->setText(tr("Paste"));
    remove_->setText(tr("Remove"));
    clear_->setText(tr("Clear"));
    undo_->setText(tr("Undo"));
    add_->setToolTip(tr("Add a new row in the category table"));
    copy_->setToolTip(tr("Copy the category table of the variable"));
    paste_->setToolTip(
        tr("Paste the category table copied from another variable into the current one."));
    remove_->setToolTip(tr("Remove the active row form the category table"));
    clear_->setToolTip(tr("Clear all information in the category table"));
    undo_->setToolTip(tr("Take back the last change of the category table"));
    emit model_->headerDataChanged(Qt::Horizontal, 0,
                                   VarValueLabelDiccionaryModel::ColumnCount - 1);
    refresh();
}
