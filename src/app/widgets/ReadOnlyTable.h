// SPDX-License-Identifier: GPL-3.0-or-later
// How tables look that show and are not edited.
#pragma once

#include <QTableView>

/// Whole rows are selected; Tab leaves the table. The model is not owned.
class ReadOnlyTable : public QTableView {
    Q_OBJECT

public:
    ReadOnlyTable(QAbstractItemModel* model, const QString& objectName, QWidget* parent = nullptr);
};
