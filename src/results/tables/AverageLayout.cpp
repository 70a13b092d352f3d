// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/tables/AverageLayout.h"

#include "results/tables/CrossLayout.h"
#include "results/tables/CrossTable.h"
#include "results/tables/GenericLayout.h"
#include "results/tables/OneVariableLayout.h"
#include "results/tables/VariableHeading.h"

#include "TKelOutput.h"

#include <QCoreApplication>

namespace {

struct Headings {
    Q_DECLARE_TR_FUNCTIONS(AverageLayout)
};

/// A row that names the variable and tells its average.
TableLayout overallLayout(TKelOutput& output) {
    TableLayout layout = genericLayout(output);
    layout.columnHeaders = {Headings::tr("Variable"), Headings::tr("Average")};
    layout.textColumns = {true, false};
    layout.header = {};
    layout.header.startRow();
    for (int column = 0; column < layout.columnHeaders.size(); ++column)
        layout.header.add(layout.columnHeaders[column], column);
    return layout;
}

} // namespace

TableLayout averageLayout(TKelOutput& output, const TableViewConfig& options,
                          const TablePreferences& preferences) {
    const auto variables = spanningVariables(output);
    if (variables.empty())
        return overallLayout(output);
    if (CrossTable::suits(output))
        return crossLayout(output, options, preferences);
    if (variables.size() > 1)
        return genericLayout(output);
    const int decimals = output.options().decimals.value_or(preferences.decimals);
    return oneVariableLayout(output,
                             OneVariableOptions::ofFigures(
                                 variableHeading(*variables.front(), preferences.variableHeading),
                                 options.rowsOrder, decimals));
}
