// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/ResultsTreeViewContextMenu.h"

ResultsTreeViewContextMenu::ResultsTreeViewContextMenu(bool canCopy, QWidget* parent)
    : QMenu(parent) {
    using Menu = ResultsTreeViewContextMenu;
    setObjectName(QStringLiteral("resultsTreeViewContextMenu"));
    setAttribute(Qt::WA_DeleteOnClose);
    add(*this, "actionSelectAll", tr("Select all"), &Menu::selectAll);
    add(*this, "actionDeselectAll", tr("Deselect all"), &Menu::deselectAll);
    if (canCopy)
        add(*this, "actionCopyTable", tr("Copy"), &Menu::copy);
    QMenu* exports = addMenu(tr("Export selected"));
    exports->setObjectName(QStringLiteral("menuExportSelected"));
    add(*exports, "actionExportCsv", tr("CSV"), &Menu::exportCsv);
    add(*exports, "actionExportJson", tr("JSON"), &Menu::exportJson);
    add(*exports, "actionExportExcel", tr("EXCEL"), &Menu::exportExcel);
    add(*exports, "actionExportXml", tr("XML"), &Menu::exportXml);
    add(*exports, "actionExportPdf", tr("PDF"), &Menu::exportPdf);
}

void ResultsTreeViewContextMenu::add(QMenu& menu, const char* name, const QString& text,
                                     Command command) {
    QAction* action = menu.addAction(text);
    action->setObjectName(QLatin1String(name));
    connect(action, &QAction::triggered, this, command);
}
