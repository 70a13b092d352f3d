// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/exports/HtmlReport.h"

#include "results/exports/ReportFacts.h"
#include "results/tables/TableBase.h"

namespace {

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

QString fact(const char* name, const QString& value) {
    return heading(QLatin1String(name)) + paragraph(value);
}

QString fact(const char* name, const std::optional<QString>& value) {
    return value ? fact(name, *value) : QString();
}

} // namespace

HtmlReport::HtmlReport(const TableBase& table)
    : table_(&table), alignments_(table.columnAlignments()), totals_(table.reportTotalRows()) {}

qsizetype HtmlReport::rows() const {
    return table_->reportCells().size();
}

int HtmlReport::headerRows() const {
    return static_cast<int>(table_->headerTexts().size());
}

QString HtmlReport::slice(qsizetype first, qsizetype end) const {
    QString html = head;
    if (first == 0)
        html += facts() + QStringLiteral("<br>");
    html += QStringLiteral("<table>") + header();
    for (qsizetype number = first; number < end; ++number)
        html += row(number);
    html += QStringLiteral("</table>");
    const QString note = table_->metadata().suppressedNote();
    if (end == rows() && !note.isEmpty())
        html += QStringLiteral("<br>") + paragraph(note);
    return html + QStringLiteral("</body></html>");
}

QString HtmlReport::facts() const {
    const TableMetadata& facts = table_->metadata();
    QString html = fact("Title", facts.title) + fact("Database", facts.database) +
                   fact("Geographic Area", facts.geographicArea()) + fact("Tally", facts.tally) +
                   fact("Weight", facts.weight) + fact("Filter", facts.filter) +
                   fact("Universal Filter", facts.universalFilter);
    if (facts.sort)
        html += heading(QStringLiteral("Sorted(%1) by").arg(sortWord(*facts.sort))) +
                paragraph(facts.sort->variable);
    return html + variables();
}

QString HtmlReport::variables() const {
    const TableMetadata& facts = table_->metadata();
    if (facts.kind == tablekind::areaList)
        return fact("Entity", entityTitle(facts)) + fact("Key", facts.key);
    QString html = heading(facts.isCrosstab() ? QStringLiteral("Crosstab") : facts.kindName);
    for (qsizetype variable = 0; variable < facts.variableLabels.size(); ++variable)
        html += paragraph((variable == 0 ? QStringLiteral("of ") : QStringLiteral("by ")) +
                          facts.variableTitle(variable));
    return html;
}

QString HtmlReport::header() const {
    const QList<QStringList> texts = table_->headerTexts();
    const auto spans = table_->headerSpans();
    QString html;
    for (qsizetype line = 0; line < texts.size(); ++line) {
        html += QStringLiteral("<tr>");
        for (qsizetype item = 0; item < texts[line].size(); ++item)
            html += QStringLiteral("<th colspan=\"%1\" rowspan=\"%2\">")
                        .arg(spans[line][item].first)
                        .arg(spans[line][item].second) +
                    texts[line][item].toHtmlEscaped() + QStringLiteral("</th>");
        html += QStringLiteral("</tr>");
    }
    return html;
}

QString HtmlReport::row(qsizetype row) const {
    const ResultRows& cells = table_->reportCells();
    QString html = totals_.value(row) != 0 ? QStringLiteral("<tr class=\"totalRow\">")
                                           : QStringLiteral("<tr>");
    for (qsizetype column = 0; column < cells.columns(row); ++column)
        html +=
            (isNumericColumn(alignments_, column) ? QStringLiteral("<td>")
                                                  : QStringLiteral("<td class=\"stringCell\">")) +
            cells.display(row, column).toHtmlEscaped() + QStringLiteral("</td>");
    return html + QStringLiteral("</tr>");
}
