// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/ResultsManager.h"

#include "TKelOutput.h"
#include "TKelSession.h"
#include "app/messages/Messages.h"
#include "results/DirectWriter.h"
#include "results/ResultClipboard.h"
#include "results/ResultFaults.h"
#include "results/ResultLog.h"
#include "results/ResultOptions.h"
#include "results/ResultPages.h"
#include "results/ResultTableView.h"
#include "results/ResultsTreeViewContextMenu.h"

#include <QAction>
#include <QCloseEvent>
#include <QDir>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QScopedValueRollback>
#include <QShortcut>
#include <QSplitter>
#include <QStackedWidget>
#include <QStandardItemModel>
#include <QStatusBar>
#include <QTabWidget>
#include <QTextDocument>
#include <QToolBar>
#include <QTreeView>

#include <initializer_list>
#include <utility>

namespace {

constexpr int shortNote = 2000; ///< milliseconds in the status bar

} // namespace

ResultsManager::ResultsManager(const KelSystem& settings, QString databasePath, QWidget* parent)
    : QMainWindow(parent), settings_(&settings), databasePath_(std::move(databasePath)),
      actions_(this),
      exports_(settings, this, [this](const QStringList& lines) { tellFaults(lines); }),
      model_(new QStandardItemModel(this)), tree_(new QTreeView), noTable_(new QLabel),
      stack_(new QStackedWidget), tabs_(new QTabWidget), list_(new ResultListPage),
      report_(new ResultReportPage) {
    setObjectName(QStringLiteral("ResultsManager"));
    setWindowFlags(Qt::Widget);
    setWindowIcon(QIcon(QStringLiteral(":/icons/res/icons/48px-Table.png")));
    auto* splitter = new QSplitter(Qt::Horizontal);
    splitter->setObjectName(QStringLiteral("splitter"));
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(tree_);
    splitter->addWidget(stack_);
    const int unit = fontMetrics().averageCharWidth();
    splitter->setSizes({32 * unit, 90 * unit});
    splitter->setStretchFactor(1, 1);
    setCentralWidget(splitter);
    setupTree();
    setupPages();
    setupActions();
    setFocusProxy(tree_);
    tree_->setFocus();
    stack_->setCurrentWidget(noTable_);
    statusBar()->setSizeGripEnabled(false);
    connect(statusBar(), &QStatusBar::messageChanged, this,
            [this] { statusBar()->setToolTip({}); }); // of the message before
    retranslate();
}

ResultsManager::~ResultsManager() = default;

void ResultsManager::setupTree() {
    tree_->setObjectName(QStringLiteral("treeView"));
    tree_->setModel(model_);
    tree_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    tree_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tree_->setContextMenuPolicy(Qt::CustomContextMenu);
    tree_->setUniformRowHeights(true);
    fillResultTree(*model_, processes_);
    connect(model_, &QStandardItemModel::itemChanged, this, &ResultsManager::onHandleItemChanged);
    connect(tree_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &ResultsManager::onTreeViewSelectionChanged);
    connect(tree_, &QWidget::customContextMenuRequested, this,
            &ResultsManager::onShowTreeViewContextMenu);
}

void ResultsManager::setupPages() {
    noTable_->setObjectName(QStringLiteral("labelNoTable"));
    noTable_->setAlignment(Qt::AlignCenter);
    noTable_->setWordWrap(true);
    tabs_->setObjectName(QStringLiteral("tabWidget"));
    tabs_->addTab(list_, QString());
    tabs_->addTab(report_, QString());
    stack_->setObjectName(QStringLiteral("resultStack"));
    stack_->addWidget(noTable_);
    stack_->addWidget(tabs_);
    connect(list_->view(), &ResultTableView::itemSelectionChanged, this,
            &ResultsManager::onTableWidgetItemSelectionChanged);
    connect(report_->view(), &ResultTableView::itemSelectionChanged, this,
            &ResultsManager::onTableWidgetReportItemSelectionChanged);
    connect(list_, &ResultPage::menuRequested, this,
            &ResultsManager::onTableWidgetContextMenuRequested);
    connect(report_, &ResultPage::menuRequested, this,
            &ResultsManager::onTableWidgetReportContextMenuRequested);
}

void ResultsManager::setupActions() {
    auto* bar = new QToolBar(this);
    bar->setObjectName(QStringLiteral("toolBar"));
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    bar->setMovable(false);
    bar->setContextMenuPolicy(Qt::PreventContextMenu); // it would offer to hide the bar for good
    const int side = 20;
    bar->setIconSize({side, side});
    actions_.fill(*bar);
    addToolBar(bar);
    connect(actions_.csvLabelAsHeader, &QAction::triggered, this,
            &ResultsManager::onExportAsCsvLabelAsHeader);
    connect(actions_.csvNameAsHeader, &QAction::triggered, this,
            &ResultsManager::onExportAsCsvNameAsHeader);
    connect(actions_.json, &QAction::triggered, this, &ResultsManager::onExportAsJson);
    connect(actions_.xlsx, &QAction::triggered, this, &ResultsManager::onExportAsExcel);
    connect(actions_.xml, &QAction::triggered, this, &ResultsManager::onExportAsXml);
    connect(actions_.pdf, &QAction::triggered, this, &ResultsManager::onExportAsPdf);
    connect(actions_.order, &QAction::triggered, this, &ResultsManager::onViewOptionsDialogClicked);
    connect(actions_.copy, &QAction::triggered, this, &ResultsManager::copySelectedCells);
    auto* panes = new QShortcut(Qt::Key_F6, this);
    panes->setContext(Qt::WidgetWithChildrenShortcut);
    connect(panes, &QShortcut::activated, this, &ResultsManager::nextPane);
}

QStringList ResultsManager::addOutputs(const std::vector<TKelOutput*>& outputs,
                                       std::shared_ptr<TKelSession> session,
                                       const QString& stylePath) {
    const TableMaker maker(*settings_, *session->dictionary(), databasePath_);
    DirectWriter direct(*settings_, outputs, this);
    processes_.push_back(
        std::make_unique<ResultProcess>(outputs, std::move(session), maker, stylePath, direct));
    rebuildTree();
    return direct.lines();
}

void ResultsManager::rebuildTree() {
    {
        const QScopedValueRollback guard(mirroring_, true);
        fillResultTree(*model_, processes_);
    }
    tree_->expandAll();
    const QModelIndex newest = newestResult(*model_);
    tree_->setCurrentIndex(newest);
    tree_->scrollTo(newest);
}

void ResultsManager::onHandleItemChanged(QStandardItem* item) {
    if (mirroring_ || !item->isCheckable())
        return;
    const bool checked = item->checkState() == Qt::Checked;
    tree_->selectionModel()->select(
        item->index(), (checked ? QItemSelectionModel::Select : QItemSelectionModel::Deselect) |
                           QItemSelectionModel::Rows);
}

void ResultsManager::onTreeViewSelectionChanged(const QItemSelection& selected,
                                                const QItemSelection& deselected) {
    if (mirroring_)
        return;
    const QModelIndexList added = selected.indexes();
    {
        const QScopedValueRollback guard(mirroring_, true);
        const auto check = [this](const QModelIndexList& indexes, Qt::CheckState state) {
            for (const QModelIndex& index : indexes)
                if (QStandardItem* item = model_->itemFromIndex(index); item->isCheckable())
                    item->setCheckState(state);
        };
        check(deselected.indexes(), Qt::Unchecked);
        check(added, Qt::Checked);
    }
    const QModelIndexList all = selectedItems();
    place_ = ResultPlace(added.isEmpty() ? all.value(all.size() - 1) : added.last());
    if (place_.table >= 0)
        showSelectedTable();
    else if (place_.process >= 0 &&
             processes_[static_cast<std::size_t>(place_.process)]->count() == 0)
        clearShown();
    updateOptionsAction();
}

QList<QModelIndex> ResultsManager::selectedItems() const {
    return tree_->selectionModel()->selectedIndexes();
}

bool ResultsManager::oneTableSelected() const {
    const QModelIndexList selected = selectedItems();
    return selected.size() == 1 && selected.front().parent().isValid();
}

TableBase* ResultsManager::tableAt(const ResultPlace& place) const {
    const bool known = place.process >= 0 && place.process < static_cast<int>(processes_.size());
    return known ? processes_[static_cast<std::size_t>(place.process)]->table(place.table)
                 : nullptr;
}

void ResultsManager::updateOptionsAction() {
    const TableBase* table = selectedTable();
    const bool fits = table != nullptr && table->kind() != tablekind::average &&
                      table->kind() != tablekind::tablist;
    actions_.showOptions(fits && oneTableSelected());
}

void ResultsManager::showSelectedTable() {
    TableBase* table = selectedTable();
    if (table == nullptr)
        showError(tr("No table has been selected."));
    else
        showTable(*table);
}

void ResultsManager::clearShown() {
    disconnect(headerClicks_);
    list_->clear();
    report_->clear();
    copied_.clear();
    shown_ = nullptr;
    stack_->setCurrentWidget(noTable_);
}

void ResultsManager::showTable(TableBase& table) {
    clearShown();
    shown_ = &table;
    stack_->setCurrentWidget(tabs_);
    updateOptionsAction();
    connectHeader(table);
    emit signalTableShowed(&table);
    const WriteOutcome* file = direct(table);
    for (ResultPage* page : std::initializer_list<ResultPage*>{list_, report_})
        if (file != nullptr && file->written()) {
            page->showWords(tr("Table result was exported directly.") + '\n' +
                            QDir::toNativeSeparators(file->path));
        } else {
            page->showTable(table);
            if (file != nullptr)
                page->addNote(resultFault(*file));
        }
}

const WriteOutcome* ResultsManager::direct(const TableBase& table) const {
    for (const auto& process : processes_)
        if (const WriteOutcome* file = process->direct(table))
            return file;
    return nullptr;
}

void ResultsManager::connectHeader(const TableBase& table) {
    if (table.kind() == tablekind::areaList)
        headerClicks_ = connect(list_->view()->horizontalHeader(), &QHeaderView::sectionClicked,
                                this, &ResultsManager::onHeaderClicked);
}

void ResultsManager::onHeaderClicked(int columnIndex) {
    if (shown_ == nullptr)
        return;
    shown_->headerClicked(columnIndex);
    shown_->rebuild();
    showTable(*shown_);
}

void ResultsManager::onViewOptionsDialogClicked() {
    TableBase* table = selectedTable();
    if (table != nullptr)
        askViewOptions(*table, this);
    showSelectedTable();
}

void ResultsManager::onShowTreeViewContextMenu(QPoint place) {
    auto* menu = new ResultsTreeViewContextMenu(oneTableSelected(), this);
    using Menu = ResultsTreeViewContextMenu;
    connect(menu, &Menu::selectAll, tree_, &QTreeView::selectAll);
    connect(menu, &Menu::deselectAll, tree_, &QTreeView::clearSelection);
    connect(menu, &Menu::copy, this, &ResultsManager::onCopyTableContentToClipboard);
    connect(menu, &Menu::exportCsv, this, &ResultsManager::onExportAsCsvLabelAsHeader);
    connect(menu, &Menu::exportJson, this, &ResultsManager::onExportAsJson);
    connect(menu, &Menu::exportExcel, this, &ResultsManager::onExportAsExcel);
    connect(menu, &Menu::exportXml, this, &ResultsManager::onExportAsXml);
    connect(menu, &Menu::exportPdf, this, &ResultsManager::onExportAsPdf);
    addOptions(*menu);
    menu->popup(tree_->viewport()->mapToGlobal(place));
}

void ResultsManager::onTableWidgetItemSelectionChanged() {
    copied_ = list_->view()->selectedBounds().isEmpty() ? nullptr : list_->view();
}

void ResultsManager::onTableWidgetReportItemSelectionChanged() {
    copied_ = report_->view()->selectedBounds().isEmpty() ? nullptr : report_->view();
}

void ResultsManager::onTableWidgetContextMenuRequested(QPoint pos) {
    showCopyMenu(*list_->view(), pos);
}

void ResultsManager::onTableWidgetReportContextMenuRequested(QPoint pos) {
    showCopyMenu(*report_->view(), pos);
}

void ResultsManager::addOptions(QMenu& menu) const {
    if (!actions_.order->isVisible())
        return;
    menu.addSeparator();
    menu.addAction(actions_.order);
}

void ResultsManager::showCopyMenu(const ResultTableView& view, QPoint pos) {
    auto* menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("copyMenu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(actions_.copy);
    addOptions(*menu);
    menu->popup(view.viewport()->mapToGlobal(pos));
}

void ResultsManager::copySelectedCells() {
    if (copied_ == nullptr && tree_->hasFocus()) {
        onCopyTableContentToClipboard();
        return;
    }
    if (copied_ == nullptr) {
        statusBar()->showMessage(tr("No cells are selected"), shortNote);
        return;
    }
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const bool copied = ResultClipboard::copy(*copied_->model(), copied_->selectedBounds());
    QGuiApplication::restoreOverrideCursor();
    tellCopied(copied);
}

void ResultsManager::tellCopied(bool copied) {
    statusBar()->showMessage(copied ? tr("Copied to clipboard")
                                    : tr("Too many cells to copy; an export takes them all"),
                             shortNote);
}

void ResultsManager::onCopyTableContentToClipboard() {
    const TableBase* table = oneTableSelected() ? selectedTable() : nullptr;
    if (table == nullptr)
        return;
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const bool copied = ResultClipboard::copy(*table);
    QGuiApplication::restoreOverrideCursor();
    if (!copied)
        tellCopied(false);
}

QList<ExportEntry> ResultsManager::chosen() const {
    QList<ExportEntry> entries;
    for (const QModelIndex& index : selectedItems()) {
        const ResultPlace place(index);
        ExportEntry entry;
        entry.wholeProcess = place.table < 0;
        const ResultProcess& process = *processes_[static_cast<std::size_t>(place.process)];
        if (entry.wholeProcess)
            for (int table = 0; table < process.count(); ++table)
                entry.tables += process.table(table);
        else
            entry.tables += process.table(place.table);
        entries += entry;
    }
    return entries;
}

void ResultsManager::exportAs(ExportFormat format) {
    statusBar()->clearMessage();
    exports_.write(format, chosen());
}

void ResultsManager::onExportAsCsvLabelAsHeader() {
    exportAs(ExportFormat::CsvLabelAsHeader);
}

void ResultsManager::onExportAsCsvNameAsHeader() {
    exportAs(ExportFormat::CsvNameAsHeader);
}

void ResultsManager::onExportAsJson() {
    exportAs(ExportFormat::Json);
}

void ResultsManager::onExportAsXml() {
    exportAs(ExportFormat::Xml);
}

void ResultsManager::onExportAsPdf() {
    exportAs(ExportFormat::Pdf);
}

void ResultsManager::onExportAsExcel() {
    statusBar()->clearMessage();
    exports_.writeWorkbook(chosen(), tabs_->currentWidget() == report_);
}

void ResultsManager::tellFaults(const QStringList& lines) {
    for (const QString& line : lines)
        qCWarning(resultLog).noquote() << line;
    const auto others = static_cast<int>(lines.size()) - 1;
    statusBar()->showMessage(
        others == 0 ? lines.front() : lines.front() + ' ' + tr("(and %n more)", nullptr, others));
    statusBar()->setToolTip(Qt::convertFromPlainText(lines.join('\n'), Qt::WhiteSpaceNormal));
}

void ResultsManager::nextPane() {
    if (tree_->hasFocus() && shown_ != nullptr)
        static_cast<ResultPage*>(tabs_->currentWidget())->view()->setFocus(Qt::ShortcutFocusReason);
    else
        tree_->setFocus(Qt::ShortcutFocusReason);
}

void ResultsManager::closeEvent(QCloseEvent* event) {
    event->ignore();
    hide();
    emit signalCloseWindow();
}

void ResultsManager::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QMainWindow::changeEvent(event);
}

void ResultsManager::retranslate() {
    setWindowTitle(tr("Results"));
    actions_.retranslate();
    tabs_->setTabText(tabs_->indexOf(list_), tr("List"));
    tabs_->setTabText(tabs_->indexOf(report_), tr("Table"));
    noTable_->setText(tr("No table is shown.\nRun a program, or choose a table in the tree."));
    tree_->setAccessibleName(tr("Runs and their tables"));
    list_->view()->setAccessibleName(tr("Cells of the table"));
    report_->view()->setAccessibleName(tr("Report of the table"));
    if (QToolBar* bar = findChild<QToolBar*>(QStringLiteral("toolBar")))
        bar->setWindowTitle(tr("Exports and options"));
    for (const auto& process : processes_) // headings are texts of the tables
        process->rebuild();
    if (shown_ != nullptr)
        showTable(*shown_);
}
