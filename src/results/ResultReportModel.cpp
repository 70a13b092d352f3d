// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/ResultReportModel.h"

#include "results/tables/TableBase.h"

#include <QFont>

#include <algorithm>

namespace {

QFont valueFont() {
    QFont font;
    font.setPointSize(9);
    font.setWeight(QFont::Normal);
    return font;
}

} // namespace

void ResultReportModel::showTable(const TableBase* table) {
    beginResetModel();
    Contents shown;
    lines_.clear();
    totalRows_.clear();
    if (table != nullptr) {
        const ResultFacts facts(table->metadata());
        lines_ = facts.report();
        totalRows_ = table->reportTotalRows();
        shown.header = ResultHeader(*table);
        shown.cells = table->reportCells();
        shown.alignments = table->reportColumnAlignments();
        const qsizetype first = shown.cells.isEmpty() ? 0 : shown.cells.columns(0);
        shown.columns = static_cast<int>(std::max(table->columnHeaders().size(), first)) + 2;
        shown.top = static_cast<int>(lines_.size()) + 1;
        shown.left = 1;
        shown.rows = facts.reportRows(shown.header.rows(), static_cast<int>(shown.cells.size()));
    }
    setContents(std::move(shown));
    endResetModel();
}

const ReportLine* ResultReportModel::line(int row, int column) const {
    return column == 0 && row < lines_.size() ? &lines_[row] : nullptr;
}

bool ResultReportModel::isTotal(int row, int column) const {
    return isCell(row, column) && totalRows_.value(row - firstCellRow()) != 0;
}

QString ResultReportModel::text(int row, int column) const {
    const ReportLine* fact = line(row, column);
    return fact != nullptr ? fact->text : ResultModel::text(row, column);
}

QString ResultReportModel::raw(int row, int column) const {
    const ReportLine* fact = line(row, column);
    return fact != nullptr ? fact->text.trimmed() : ResultModel::raw(row, column);
}

QVariant ResultReportModel::look(int row, int column, int role) const {
    const bool header = headerAt(row, column) != nullptr;
    if (role == resultrole::frame) {
        if (isHeader(row, column))
            return QStringLiteral("header");
        return isCell(row, column) ? QVariant(QStringLiteral("data")) : QVariant();
    }
    if (header)
        return ResultModel::look(row, column, role);
    if (role == Qt::ForegroundRole)
        return QColor(Qt::black);
    const ReportLine* fact = line(row, column);
    if (role == Qt::BackgroundRole && (fact != nullptr || isCell(row, column)))
        return isTotal(row, column) ? QColor(192, 192, 192) : QColor(Qt::white);
    if (fact == nullptr)
        return {};
    if (role == Qt::ToolTipRole)
        return fact->text.trimmed().toHtmlEscaped();
    return role == Qt::FontRole ? QVariant(fact->heading ? headingFont() : valueFont())
                                : QVariant();
}

QList<CellSpan> ResultReportModel::spans() const {
    QList<CellSpan> spans = ResultModel::spans();
    for (int row = 0; row < lines_.size(); ++row)
        spans += {row, 0, 1, columnCount()};
    return spans;
}
