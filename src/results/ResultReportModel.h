// SPDX-License-Identifier: GPL-3.0-or-later
// The report of a result table: its facts, then its headers and cells, on white.
#pragma once

#include "results/ResultFacts.h"
#include "results/ResultModel.h"

namespace resultrole {
/// "data" or "header": what frame ResTableDelegate draws. The number is Qt's for decorations, which
/// the delegate leaves out.
inline constexpr int frame = 1;
} // namespace resultrole

/// A narrow column stands on either side of the table.
class ResultReportModel : public ResultModel {
    Q_OBJECT

public:
    using ResultModel::ResultModel;

    void showTable(const TableBase* table); ///< null: nothing
    QList<CellSpan> spans() const override;
    QString text(int row, int column) const override;

protected:
    QString raw(int row, int column) const override;
    QVariant look(int row, int column, int role) const override;

private:
    const ReportLine* line(int row, int column) const; ///< null where none stands
    bool isTotal(int row, int column) const;

    QList<ReportLine> lines_;
    QList<quint8> totalRows_;
};
