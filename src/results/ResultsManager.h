// SPDX-License-Identifier: GPL-3.0-or-later
// The window of results: a tree of the runs and their tables, and the table chosen there as a grid
// and as a report.
#pragma once

#include "results/ResultActions.h"
#include "results/ResultExports.h"
#include "results/ResultTree.h"

#include <QItemSelection>
#include <QMainWindow>
#include <QPointer>
#include <QStringList>

#include <memory>
#include <vector>

class KelSystem;
class QLabel;
class QMenu;
class QStackedWidget;
class QStandardItem;
class QStandardItemModel;
class QTabWidget;
class QTreeView;
class ResultListPage;
class ResultPage;
class ResultReportPage;
class ResultTableView;
class TKelOutput;
class TKelSession;

/// Lives as long as the dictionary is open and keeps every run since. Closing it hides it.
class ResultsManager : public QMainWindow {
    Q_OBJECT

public:
    /// databasePath: of the dictionary's file, whose name stands in where it has no description.
    ResultsManager(const KelSystem& settings, QString databasePath, QWidget* parent = nullptr);
    ~ResultsManager() override;

    /// Adds a process and shows its first table. stylePath: of a table style, or empty. Gives lines
    /// to tell of files that were not written, or elsewhere than the program says.
    QStringList addOutputs(const std::vector<TKelOutput*>& outputs,
                           std::shared_ptr<TKelSession> session, const QString& stylePath);
    void setDatabasePath(const QString& path) { databasePath_ = path; } ///< after a Save As
    TableBase* shownTable() const { return shown_; }                    ///< null while none is

signals:
    void signalCloseWindow();
    void signalTableShowed(TableBase* table);

public slots:
    void onCopyTableContentToClipboard();
    void onExportAsCsvLabelAsHeader();
    void onExportAsCsvNameAsHeader();
    void onExportAsJson();
    void onExportAsExcel();
    void onExportAsXml();
    void onExportAsPdf();
    void onViewOptionsDialogClicked();
    void onHandleItemChanged(QStandardItem* item);
    void onShowTreeViewContextMenu(QPoint place);
    void onTreeViewSelectionChanged(const QItemSelection& selected,
                                    const QItemSelection& deselected);
    void onTableWidgetItemSelectionChanged();
    void onTableWidgetReportItemSelectionChanged();
    void onTableWidgetContextMenuRequested(QPoint pos);
    void onTableWidgetReportContextMenuRequested(QPoint pos);
    void onHeaderClicked(int columnIndex);

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void setupTree();
    void setupPages();
    void setupActions();
    void retranslate();

    void rebuildTree();
    QList<QModelIndex> selectedItems() const;
    QList<ExportEntry> chosen() const;
    bool oneTableSelected() const;
    TableBase* tableAt(const ResultPlace& place) const;
    TableBase* selectedTable() const { return tableAt(place_); }
    void updateOptionsAction();

    void showSelectedTable();
    void showTable(TableBase& table);
    void clearShown();
    const WriteOutcome* direct(const TableBase& table) const; ///< null where it goes to no file
    void connectHeader(const TableBase& table);

    void copySelectedCells();
    void addOptions(QMenu& menu) const; ///< where the shown table has any
    void showCopyMenu(const ResultTableView& view, QPoint pos);
    void tellCopied(bool copied);
    void exportAs(ExportFormat format);
    void tellFaults(const QStringList& lines);
    void nextPane(); ///< the focus goes from the tree to the table and back

    const KelSystem* settings_;
    QString databasePath_;
    ResultActions actions_;
    ResultExports exports_;
    QStandardItemModel* model_;
    QTreeView* tree_;
    QLabel* noTable_;
    QStackedWidget* stack_; ///< words where no table is shown, and the tabs
    QTabWidget* tabs_;
    ResultListPage* list_;
    ResultReportPage* report_;
    ResultPlace place_; ///< selected in the tree
    ResultProcesses processes_;
    TableBase* shown_ = nullptr;
    QPointer<ResultTableView> copied_; ///< whose selection changed last; null where it is empty
    QMetaObject::Connection headerClicks_;
    bool mirroring_ = false; ///< checks and selection follow each other just now
};
