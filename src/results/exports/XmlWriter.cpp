// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/exports/XmlWriter.h"

#include "results/exports/ExportFile.h"
#include "results/exports/ReportFacts.h"
#include "results/tables/TableBase.h"

namespace {

class XmlReport {
public:
    XmlReport(const TableBase& table, ExportFile& file) : table_(table), file_(file) {}

    void write();

private:
    void line(const QString& text) { file_.write(text + QLatin1Char('\n')); }
    void element(int indent, const char* start, const QString& value, const char* end);
    void element(int indent, const char* tag, const QString& value) {
        element(indent, tag, value, tag);
    }
    void writeTitles();
    void writeClauses();
    void writeSort();
    void writeVariables();
    void writeHeader();
    void writeRow(const ResultRows& rows, qsizetype row);

    const TableBase& table_;
    const TableMetadata& facts_ = table_.metadata();
    const QList<int> alignments_ = table_.columnAlignments();
    const QList<quint8> totals_ = table_.reportTotalRows();
    ExportFile& file_;
};

void XmlReport::element(int indent, const char* start, const QString& value, const char* end) {
    line(QString(indent, QLatin1Char(' ')) + QLatin1Char('<') + QLatin1String(start) +
         QLatin1Char('>') + value + QLatin1String("</") + QLatin1String(end) + QLatin1Char('>'));
}

void XmlReport::write() {
    line(QStringLiteral(R"(<?xml version="1.0" encoding="UTF-8"?>)"));
    line(QStringLiteral("<data>"));
    writeTitles();
    line(QStringLiteral("  <metadata>"));
    writeClauses();
    writeVariables();
    line(QStringLiteral("  </metadata>"));
    line(QStringLiteral("  <table>"));
    writeHeader();
    const ResultRows& rows = table_.reportCells();
    for (qsizetype row = 0; row < rows.size() && file_.goesOn(); ++row)
        writeRow(rows, row);
    line(QStringLiteral("  </table>"));
    line(QStringLiteral("</data>"));
}

void XmlReport::writeTitles() {
    line(QStringLiteral("  <titles>"));
    element(4, "title", facts_.title);
    element(4, "database", facts_.database);
    element(4, "geographic_area", facts_.geographicArea());
    line(QStringLiteral("  </titles>"));
}

void XmlReport::writeClauses() {
    if (facts_.tally)
        element(4, "tally", *facts_.tally);
    if (facts_.weight)
        element(4, "weight", *facts_.weight);
    if (facts_.filter)
        element(4, "local_filter", *facts_.filter);
    if (facts_.universalFilter)
        element(4, "universar_filter", *facts_.universalFilter, "universal_filter");
    writeSort();
}

void XmlReport::writeSort() {
    if (!facts_.sort)
        return;
    element(4, "sort_type", sortWord(*facts_.sort));
    element(4, "sort", facts_.sort->variable);
}

void XmlReport::writeVariables() {
    if (facts_.kind == tablekind::areaList) {
        element(4, "entity", entityTitle(facts_));
        element(4, "key", facts_.key);
        return;
    }
    const qsizetype variables = facts_.variableLabels.size();
    element(4, "result_type", facts_.isCrosstab() ? QStringLiteral("Crosstable") : facts_.kindName);
    element(4, "of", variables > 0 ? facts_.variableTitle(0) : QString());
    line(QStringLiteral("    <by>"));
    for (qsizetype variable = 1; variable < variables; ++variable)
        element(8, "by_item", facts_.variableTitle(variable));
    line(QStringLiteral("    </by>"));
}

void XmlReport::writeHeader() {
    const QList<QStringList> texts = table_.headerTexts();
    const auto spans = table_.headerSpans();
    for (qsizetype row = 0; row < texts.size(); ++row) {
        line(QStringLiteral(R"(    <row class="header">)"));
        for (qsizetype item = 0; item < texts[row].size(); ++item) {
            const auto [columns, lines] = spans[row][item];
            line(QStringLiteral(R"(      <column colspan="%1" rowspan="%2">)")
                     .arg(columns)
                     .arg(lines) +
                 texts[row][item] + QLatin1String("</column>"));
        }
        line(QStringLiteral("    </row>"));
    }
}

void XmlReport::writeRow(const ResultRows& rows, qsizetype row) {
    file_.write(totals_.value(row) != 0 ? "    <row class=\"totalRow\">\n" : "    <row>\n");
    for (qsizetype column = 0; column < rows.columns(row) && file_.goesOn(); ++column) {
        file_.write(isNumericColumn(alignments_, column) ? "      <column>"
                                                         : "      <column class=\"stringCell\">");
        file_.write(rows.text(row, column));
        file_.write("</column>\n");
        file_.cellDone();
    }
    file_.write("    </row>\n");
}

} // namespace

WriteOutcome writeXmlReport(const TableBase& table, const QString& path,
                            const WriteProgress& progress) {
    const ResultRows& rows = table.reportCells();
    ExportFile file(path, rows.size() * rows.width(), progress);
    XmlReport(table, file).write();
    return file.close();
}
