// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/widgets/ReadOnlyTable.h"

#include <QHeaderView>

ReadOnlyTable::ReadOnlyTable(QAbstractItemModel* model, const QString& objectName, QWidget* parent)
    : QTableView(parent) {
    setObjectName(objectName);
    setModel(model);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setTabKeyNavigation(false);
    setWordWrap(false);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
    horizontalHeader()->setHighlightSections(false);
}
