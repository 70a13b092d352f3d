// SPDX-License-Identifier: GPL-3.0-or-later
// The grid of a result table: its header rows and its cells.
#pragma once

#include "results/ResultModel.h"

#include <QStringList>

class ResultGridModel : public ResultModel {
    Q_OBJECT

public:
    using ResultModel::ResultModel;

    void showTable(const TableBase* table); ///< null: nothing
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    /// The columns are named where their own headers have been scrolled away, else numbered.
    void setColumnsNamed(bool named);

private:
    QStringList names_;
    bool named_ = false;
};
