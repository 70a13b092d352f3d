// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/tables/TableFrequency.h"

#include "results/tables/CrossLayout.h"
#include "results/tables/CrossTable.h"
#include "results/tables/GenericLayout.h"
#include "results/tables/OneVariableLayout.h"
#include "results/tables/VariableHeading.h"

#include "TKelOutput.h"

void TableFrequency::headerClicked(int /*column*/) {
    setRowsOrder((rowsOrder() + 1) % 3);
}

void TableFrequency::applyViewConfig(const TableViewConfig& config) {
    const bool several = output().dimension() > 1;
    TableViewConfig own = config;
    own.hideNa = !(several ? config.showNaSeveralVariables : config.showNaOneVariable);
    own.hideMv = !(several ? config.showMvSeveralVariables : config.showMvOneVariable);
    takeFormat(own);
    TableBase::applyViewConfig(own);
}

TableLayout TableFrequency::layOut() const {
    const auto variables = spanningVariables(output());
    if (CrossTable::suits(output())) {
        TableViewConfig withTotal = options();
        withTotal.hideTotal = false;
        return crosstabLayout(output(), withTotal, preferences());
    }
    if (variables.size() != 1)
        return genericLayout(output());
    return oneVariableLayout(output(),
                             OneVariableOptions::ofFrequency(
                                 variableHeading(*variables.front(), preferences().variableHeading),
                                 cellFormat().decimals));
}
