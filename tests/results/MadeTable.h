// SPDX-License-Identifier: GPL-3.0-or-later
// A result table of made rows, without an engine behind it: what reads tables is tested with it.
#pragma once

#include "TKelOutput.h"
#include "results/tables/TableBase.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

/// Built before the table that refers to it.
struct MadeOutput {
    TKelOutput emptyOutput;
};

class MadeTable : private MadeOutput, public TableBase {
public:
    explicit MadeTable(TableLayout layout, TableMetadata metadata = {},
                       TablePreferences preferences = {})
        : TableBase({&emptyOutput, std::move(preferences), std::move(metadata)}),
          made_(std::move(layout)) {}

    QString outputName() const override { return metadata().name; }
    QString tableName() const override { return metadata().name; }
    QString title() const override { return metadata().title; }
    QString database() const override { return metadata().database; }
    QString geographicArea() const override { return metadata().geographicArea(); }
    std::string asJson() const override { return json; }
    bool exportedDirectly() const override { return direct; }
    int kind() const override { return metadata().kind; }
    QString dictionaryVariableName() const override { return {}; }

    TKelOutputConfig& program() { return emptyOutput.options(); } ///< what it asked for

    std::string json = "{}";
    bool direct = false;

protected:
    TableLayout layOut() const override { return made_; }

private:
    TableLayout made_;
};

using MadeRows = std::vector<std::vector<std::string>>;

inline CellTexts madeCells(const MadeRows& rows) {
    CellTexts cells;
    for (const auto& row : rows) {
        cells.startRow();
        for (const std::string& text : row)
            cells.add(std::string_view(text));
    }
    return cells;
}

/// One header row. textColumns: number of columns at the left that hold codes and labels.
inline TableLayout madeLayout(const QStringList& headers, const MadeRows& rows,
                              std::size_t textColumns = 1) {
    TableLayout layout;
    layout.columnHeaders = layout.columnNames = layout.columnLabels = headers;
    layout.header.startRow();
    for (qsizetype column = 0; column < headers.size(); ++column)
        layout.header.add(headers[column], static_cast<int>(column));
    layout.cells = madeCells(rows);
    layout.textColumns.assign(static_cast<std::size_t>(headers.size()), false);
    for (std::size_t column = 0; column < textColumns; ++column)
        layout.textColumns[column] = true;
    return layout;
}

inline TableMetadata madeFacts(int kind, const QString& kindName,
                               const QStringList& variableLabels = {}) {
    TableMetadata facts;
    facts.name = QStringLiteral("T_1");
    facts.title = QStringLiteral("A title");
    facts.database = QStringLiteral("A database");
    facts.kind = kind;
    facts.kindName = kindName;
    facts.variableLabels = variableLabels;
    for (qsizetype number = 1; number <= variableLabels.size(); ++number) {
        facts.variablePaths += QStringLiteral("PERSON.V%1").arg(number);
        facts.categoryCounts += 2;
    }
    return facts;
}

/// Sex in the counts of a population: the one-variable layout.
inline std::unique_ptr<MadeTable> madeFrequency() {
    return std::make_unique<MadeTable>(
        madeLayout({QStringLiteral("PERSON.SEX (Sex)"), QStringLiteral("Count"),
                    QStringLiteral("%"), QStringLiteral("Cumul%")},
                   {{"1. Male", "1200", "48.000000", "48.000000"},
                    {"2. Female", "1300", "52.000000", "100.000000"},
                    {"0. __tot__", "2500", "100", ""},
                    {"0. __mv__", "7", "", ""}}),
        madeFacts(tablekind::frequency, QStringLiteral("FREQUENCY"), {QStringLiteral("Sex")}));
}

/// Area by sex: two header rows, the second variable's heading over its categories.
inline std::unique_ptr<MadeTable> madeCrosstab() {
    TableLayout layout = madeLayout({QStringLiteral("HOUSE.AREA (Area)"), QStringLiteral("Total"),
                                     QStringLiteral("1. Male"), QStringLiteral("2. Female")},
                                    {{"0. __tot__", "2500", "1200", "1300"},
                                     {"1. Urban", "1234567", "0.5", "1234566.5"},
                                     {"2. Rural", "", "40", "60"}});
    layout.header = {};
    layout.header.startRow();
    layout.header.add(QStringLiteral("HOUSE.AREA (Area)"), 0, 1, 2);
    layout.header.add(QStringLiteral("PERSON.SEX (Sex)"), 1, 3, 1);
    layout.header.startRow();
    for (int column = 1; column < 4; ++column)
        layout.header.add(layout.columnHeaders[column], column);
    return std::make_unique<MadeTable>(std::move(layout),
                                       madeFacts(tablekind::frequency, QStringLiteral("FREQUENCY"),
                                                 {QStringLiteral("Area"), QStringLiteral("Sex")}));
}

/// A table of any size: a label and figures.
inline std::unique_ptr<MadeTable> madeLargeTable(int rows, int columns) {
    QStringList headers{QStringLiteral("Area")};
    for (int column = 1; column < columns; ++column)
        headers += QStringLiteral("C%1").arg(column);
    TableLayout layout = madeLayout(headers, {});
    layout.cells.reserve(rows, static_cast<qsizetype>(rows) * columns);
    for (int row = 0; row < rows; ++row) {
        layout.cells.startRow();
        layout.cells.add(std::string_view("area " + std::to_string(row)));
        for (int column = 1; column < columns; ++column)
            layout.cells.add(std::string_view(std::to_string(row * 7 + column)));
    }
    TableMetadata facts = madeFacts(tablekind::areaList, QStringLiteral("AREALIST"));
    facts.entityLabel = QStringLiteral("Municipality");
    facts.entityName = QStringLiteral("MUNIC");
    facts.key = QStringLiteral("KELCODE");
    return std::make_unique<MadeTable>(std::move(layout), std::move(facts));
}
