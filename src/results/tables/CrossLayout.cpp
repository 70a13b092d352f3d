// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/tables/CrossLayout.h"

#include "results/tables/CrossTable.h"
#include "results/tables/MatrixLayout.h"

#include "TKelOutput.h"

#include <algorithm>

namespace {

/// The innermost row variable stays in its column.
constexpr qsizetype columnsLeft = 1;

void addHeader(const CrossTable& table, TableLayout& layout) {
    const std::size_t rowVariables = table.pivot().rowVariables();
    const auto first = static_cast<int>(rowVariables);
    layout.header.startRow();
    for (std::size_t variable = 0; variable < rowVariables; ++variable)
        layout.header.add(table.heading(variable), static_cast<int>(variable), 1, 2);
    if (!table.columns().empty())
        layout.header.add(table.heading(rowVariables), first,
                          static_cast<int>(table.columns().size()));
    layout.header.startRow();
    for (qsizetype i = 0; i < std::ssize(table.columns()); ++i)
        layout.header.add(layout.columnHeaders[first + i], first + static_cast<int>(i));
}

void addColumns(const CrossTable& table, TableLayout& layout) {
    for (std::size_t variable = 0; variable < table.pivot().rowVariables(); ++variable)
        table.addRowVariable(variable, layout);
    for (const CrossColumn& column : table.columns()) {
        layout.columnHeaders += column.heading();
        layout.columnNames += column.name();
        layout.columnLabels += column.label();
        layout.textColumns.push_back(false);
    }
}

/// What stands before the rows, by variable and category.
std::vector<std::vector<std::string>> rowTexts(const Pivot& pivot) {
    std::vector<std::vector<std::string>> texts(pivot.rowVariables());
    for (std::size_t variable = 0; variable < pivot.rowVariables(); ++variable)
        for (const TableCategory& category : pivot.categories(variable))
            texts[variable].push_back(category.rowText());
    return texts;
}

void addRows(CrossTable& table, CellTexts& cells) {
    const auto texts = rowTexts(table.pivot());
    for (const std::uint32_t row : table.rows()) {
        cells.startRow();
        for (std::size_t variable = 0; variable < texts.size(); ++variable)
            cells.add(std::string_view(texts[variable][table.pivot().categoryOf(row, variable)]));
        table.addFigures(row, cells);
    }
}

/// What has changed in the first columns of the row is told in rows of its own.
void addGroupRows(const CellTexts& rows, qsizetype row, std::vector<std::string_view>& last,
                  CellTexts& grouped) {
    for (std::size_t column = 0; column < last.size(); ++column) {
        const std::string_view text = rows.at(row, static_cast<qsizetype>(column));
        if (text.empty() || text == last[column])
            continue;
        std::fill(last.begin() + static_cast<std::ptrdiff_t>(column), last.end(),
                  std::string_view());
        last[column] = text;
        grouped.startRow();
        for (qsizetype i = 0; i < rows.columns(row); ++i)
            grouped.add(i == static_cast<qsizetype>(column) ? text : std::string_view());
    }
}

} // namespace

CellTexts groupedRows(const CellTexts& rows, qsizetype columns) {
    CellTexts grouped;
    std::vector<std::string_view> last(static_cast<std::size_t>(columns));
    for (qsizetype row = 0; row < rows.rows(); ++row) {
        addGroupRows(rows, row, last, grouped);
        grouped.startRow();
        for (qsizetype column = 0; column < rows.columns(row); ++column)
            grouped.add(column < columns ? std::string_view() : rows.at(row, column));
    }
    return grouped;
}

TableLayout crossLayout(TKelOutput& output, const TableViewConfig& options,
                        const TablePreferences& preferences) {
    CrossTable table(output, options, preferences);
    TableLayout layout;
    addColumns(table, layout);
    addHeader(table, layout);
    const std::int64_t rows = std::ssize(table.rows());
    const qsizetype columns = layout.columnHeaders.size();
    const qsizetype outer = static_cast<qsizetype>(table.pivot().rowVariables()) - columnsLeft;
    // The report has the rows once more, with those of the outer variables between them.
    if (!CrossTable::fits(outer > 0 ? 2 * rows : rows, columns)) {
        layout.note = CrossTable::tooLargeNote(rows, columns);
        return layout;
    }
    layout.cells.reserve(rows, rows * columns);
    addRows(table, layout.cells);
    if (outer > 0)
        layout.report = groupedRows(layout.cells, outer);
    return layout;
}

TableLayout crosstabLayout(TKelOutput& output, const TableViewConfig& options,
                           const TablePreferences& preferences) {
    if (output.dimension() == 3 && options.threeVarLayout == QLatin1String("matrixByFirstVar"))
        if (auto matrix = matrixLayout(output, options, preferences))
            return std::move(*matrix);
    return crossLayout(output, options, preferences);
}
