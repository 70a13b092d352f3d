// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/tables/Table.h"

#include "results/tables/AreaLayout.h"
#include "results/tables/AverageLayout.h"
#include "results/tables/CrossLayout.h"
#include "results/tables/CrossTable.h"
#include "results/tables/GenericLayout.h"
#include "results/tables/OneVariableLayout.h"
#include "results/tables/TablistLayout.h"
#include "results/tables/VariableHeading.h"

#include "TKelOutput.h"

TableLayout Table::layOut() const {
    switch (output().type()) {
    case eOutputType::TABLIST:
        return tablistLayout(output());
    case eOutputType::AREALIST:
        return areaLayout(output(), options());
    case eOutputType::TABOP:
        return CrossTable::suits(output()) ? crosstabLayout(output(), options(), preferences())
                                           : genericLayout(output());
    default:
        return layOutTable();
    }
}

TableLayout Table::layOutTable() const {
    const auto variables = spanningVariables(output());
    const eTableMethod method = output().method();
    if (method == eTableMethod::AVERAGE && !variables.empty())
        return averageLayout(output(), options(), preferences());
    if (method == eTableMethod::FREQUENCY && CrossTable::suits(output()))
        return crosstabLayout(output(), options(), preferences());
    if (method == eTableMethod::FREQUENCY && variables.size() == 1)
        return oneVariableLayout(
            output(), OneVariableOptions::ofFigures(
                          variableHeading(*variables.front(), preferences().variableHeading),
                          options().rowsOrder, cellFormat().decimals));
    return genericLayout(output());
}

CellFormat Table::cellFormat() const {
    CellFormat format = TableBase::cellFormat();
    format.readsGrouped = false;
    if (format.separator.isEmpty())
        format.separator = QStringLiteral(",");
    return format;
}
