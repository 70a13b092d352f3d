// SPDX-License-Identifier: GPL-3.0-or-later
// The context menu of the tree of results.
#pragma once

#include <QMenu>

class ResultsTreeViewContextMenu : public QMenu {
    Q_OBJECT

public:
    /// canCopy: one table, and nothing else, is selected.
    explicit ResultsTreeViewContextMenu(bool canCopy, QWidget* parent = nullptr);

signals:
    void selectAll();
    void deselectAll();
    void copy();
    void exportCsv();
    void exportJson();
    void exportExcel();
    void exportXml();
    void exportPdf();

private:
    using Command = void (ResultsTreeViewContextMenu::*)();

    void add(QMenu& menu, const char* name, const QString& text, Command command);
};
