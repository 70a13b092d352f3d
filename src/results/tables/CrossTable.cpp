// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/tables/CrossTable.h"

#include "results/tables/VariableHeading.h"

#include "TKelDataset.h"
#include "TKelOutput.h"
#include "TKelVariable.h"

#include <QLocale>

namespace {

constexpr int fieldsOfVariable = 3;

/// Its label, else its path.
QString titleOf(const TKelVariable& variable) {
    return variable.label().empty() ? variablePath(variable)
                                    : QString::fromStdString(variable.label());
}

} // namespace

CrossTable::CrossTable(TKelOutput& output, const TableViewConfig& options,
                       const TablePreferences& preferences)
    : data_(output.dataset()), pivot_(data_, static_cast<std::size_t>(output.dimension())),
      columns_(crossColumns(pivot_.columns(), options)), rows_(findShownRows(options)) {
    for (const TKelVariable* variable : spanningVariables(output))
        names_.push_back({variableHeading(*variable, preferences.variableHeading),
                          variablePath(*variable), titleOf(*variable)});
}

bool CrossTable::suits(TKelOutput& output) {
    const int variables = output.dimension();
    TKelDataset* data = output.dataset();
    return variables > 1 && std::ssize(spanningVariables(output)) == variables &&
           (data == nullptr || data->numFields() == fieldsOfVariable * variables + 1);
}

std::vector<std::uint32_t> CrossTable::findShownRows(const TableViewConfig& options) const {
    std::vector<std::uint32_t> rows;
    rows.reserve(pivot_.rows());
    for (std::uint32_t row = 0; row < pivot_.rows(); ++row) {
        bool hidden = false;
        for (std::size_t variable = 0; variable < pivot_.rowVariables(); ++variable)
            hidden = hidden || isHidden(pivot_.rowCategory(row, variable).kind, options);
        if (!hidden)
            rows.push_back(row);
    }
    return rows;
}

void CrossTable::addRowVariable(std::size_t variable, TableLayout& layout) const {
    layout.columnHeaders += names_[variable].heading;
    layout.columnNames += names_[variable].path;
    layout.columnLabels += names_[variable].title;
    layout.textColumns.push_back(true);
}

void CrossTable::addFigures(std::uint32_t row, CellTexts& texts) {
    if (row == Pivot::none)
        records_.assign(pivot_.columns().size(), Pivot::none);
    else
        pivot_.findRecords(row, records_);
    const int figures = data_ != nullptr ? data_->numFields() - 1 : 0;
    for (const CrossColumn& column : columns_) {
        const std::uint32_t record =
            column.number != Pivot::none ? records_[column.number] : Pivot::none;
        if (record == Pivot::none)
            texts.add(std::string_view());
        else
            texts.add(std::string_view(data_->stringValue(record, figures)));
    }
}

QString CrossTable::tooLargeNote(std::int64_t rows, std::int64_t columns) {
    const QLocale locale;
    return tr("This table of %1 rows and %2 columns is too large to be shown: it would have more "
              "than %3 cells. Group the categories of its variables or filter the records.")
        .arg(locale.toString(static_cast<qlonglong>(rows)),
             locale.toString(static_cast<qlonglong>(columns)),
             locale.toString(static_cast<qlonglong>(mostCells)));
}
