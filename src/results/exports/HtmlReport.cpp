// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/exports/HtmlReport.h"

#include "results/exports/ReportFacts.h"
#include "results/tables/TableBase.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

/// The words that reports in workbooks have as well.
struct Words {
    Q_DECLARE_TR_FUNCTIONS(ReportSheet)
};

const QString head = QStringLiteral(
    "<!DOCTYPE html><html><head><style>"
    "table {border-collapse: collapse; width: 100%;}"
    "th {background-color: #808080; border: 1px solid black; padding: 8px; text-align: center;}"
    "td {border: 1px solid black; padding: 8px; text-align: right;}"
    ".totalRow {background-color: #C0C0C0;}"
    ".stringCell {text-align: left;}"
    "</style></head><body>");

QString heading(const QString& text) {
    return QStringLiteral("<h2>") + text.toHtmlEscaped() + QStringLiteral("</h2>");
}

QString paragraph(const QString& text) {
    return QStringLiteral("<p>") + text.toHtmlEscaped() + QStringLiteral("</p>");
}

QString fact(const QString& name, const QString& value) {
    return heading(name) + paragraph(value);
}

QString fact(const QString& name, const std::optional<QString>& value) {
    return value ? fact(name, *value) : QString();
}

} // namespace

HtmlReport::HtmlReport(const TableBase& table)
    : table_(&table), columns_(std::max(table.columnHeaders().size(), table.reportCells().width())),
      headerTexts_(table.headerTexts()), headerSpans_(table.headerSpans()),
      headerPositions_(table.headerPositions()), alignments_(table.columnAlignments()),
      totals_(table.reportTotalRows()) {}

qsizetype HtmlReport::rows() const {
    return table_->reportCells().size();
}

int HtmlReport::headerRows(const ColumnBlock& block) const {
    return headerRowsAbove(block).last();
}

QString HtmlReport::slice(qsizetype first, qsizetype end, const ColumnBlock& block) const {
    QString html = head;
    if (first == 0 && block.opens())
        html += facts() + QStringLiteral("<br>");
    html += QStringLiteral("<table>") + header(block);
    for (qsizetype number = first; number < end; ++number)
        html += row(number, block);
    html += QStringLiteral("</table>");
    const QString note = table_->metadata().suppressedNote();
    if (end == rows() && block.end >= columns_ && !note.isEmpty())
        html += QStringLiteral("<br>") + paragraph(note);
    return html + QStringLiteral("</body></html>");
}

QString HtmlReport::facts() const {
    const TableMetadata& facts = table_->metadata();
    QString html = fact(Words::tr("Title"), facts.title) +
                   fact(Words::tr("Database"), facts.database) +
                   fact(Words::tr("Geographic Area"), facts.geographicArea()) +
                   fact(Words::tr("Tally"), facts.tally) + fact(Words::tr("Weight"), facts.weight) +
                   fact(Words::tr("Filter"), facts.filter) +
                   fact(Words::tr("Universal Filter"), facts.universalFilter);
    if (facts.sort)
        html += heading(Words::tr("Sorted(%1) by")
                            .arg(facts.sort->ascending ? Words::tr("Ascending")
                                                       : Words::tr("Descending"))) +
                paragraph(facts.sort->variable);
    return html + variables();
}

QString HtmlReport::variables() const {
    const TableMetadata& facts = table_->metadata();
    if (facts.kind == tablekind::areaList)
        return fact(Words::tr("Entity"), entityTitle(facts)) + fact(Words::tr("Key"), facts.key);
    QString html = heading(facts.isCrosstab() ? Words::tr("Crosstab") : facts.kindName);
    for (qsizetype variable = 0; variable < facts.variableLabels.size(); ++variable)
        html += paragraph((variable == 0 ? Words::tr("of ") : Words::tr("by ")) +
                          facts.variableTitle(variable));
    return html;
}

/// By row of the header, and for the end of it, how many rows stand above: a row without texts of
/// its own in these columns is left out.
QList<int> HtmlReport::headerRowsAbove(const ColumnBlock& block) const {
    QList<int> above{0};
    for (qsizetype line = 0; line < headerTexts_.size(); ++line) {
        bool isShown = block.size() >= columns_;
        for (qsizetype item = 0; item < headerTexts_[line].size() && !isShown; ++item)
            isShown =
                block.shown(headerPositions_[line][item].first, headerSpans_[line][item].first) > 0;
        above += above.last() + (isShown ? 1 : 0);
    }
    return above;
}

QString HtmlReport::header(const ColumnBlock& block) const {
    const QList<int> above = headerRowsAbove(block);
    QString html;
    for (qsizetype line = 0; line < headerTexts_.size(); ++line) {
        if (above[line + 1] == above[line])
            continue;
        html += QStringLiteral("<tr>");
        for (qsizetype item = 0; item < headerTexts_[line].size(); ++item) {
            const auto [columns, rows] = headerSpans_[line][item];
            const int shown = block.shown(headerPositions_[line][item].first, columns);
            const qsizetype below = std::min(line + rows, headerTexts_.size());
            if (shown > 0)
                html += QStringLiteral("<th colspan=\"%1\" rowspan=\"%2\">")
                            .arg(shown)
                            .arg(above[below] - above[line]) +
                        headerTexts_[line][item].toHtmlEscaped() + QStringLiteral("</th>");
        }
        html += QStringLiteral("</tr>");
    }
    return html;
}

QString HtmlReport::row(qsizetype row, const ColumnBlock& block) const {
    const ResultRows& cells = table_->reportCells();
    QString html = totals_.value(row) != 0 ? QStringLiteral("<tr class=\"totalRow\">")
                                           : QStringLiteral("<tr>");
    // A row that ends before others is filled up where it might have no cell at all.
    const qsizetype columns = block.size() < columns_ ? columns_ : cells.columns(row);
    for (qsizetype place = 0; place < block.size(); ++place) {
        const qsizetype column = block.column(place);
        if (column >= columns)
            break;
        html +=
            (isNumericColumn(alignments_, column) ? QStringLiteral("<td>")
                                                  : QStringLiteral("<td class=\"stringCell\">")) +
            cells.display(row, column).toHtmlEscaped() + QStringLiteral("</td>");
    }
    return html + QStringLiteral("</tr>");
}
