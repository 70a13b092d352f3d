// SPDX-License-Identifier: GPL-3.0-or-later
// A row for each category of the only variable, with its figure, percent and running percent.
#pragma once

#include "results/tables/TableLayout.h"
#include "results/tables/TableViewConfig.h"

class TKelOutput;

struct OneVariableOptions {
    QString heading; ///< of the variable
    QString figure;  ///< heading of the figures
    int rowsOrder = TableViewConfig::Default;
    /// The percent is 0 where the total is not positive; else it is divided all the same.
    bool zeroWithoutTotal = false;
    /// That the table shows. Figures are written with six; with more only where more are shown, or
    /// zeros would stand for digits.
    int decimals = 0;

    /// "Count", and no percent of nothing.
    static OneVariableOptions ofFrequency(const QString& heading, int decimals);
    /// "count", rows in the order asked for.
    static OneVariableOptions ofFigures(const QString& heading, int rowsOrder, int decimals);
};

/// Headers only where the output has no figures.
TableLayout oneVariableLayout(TKelOutput& output, const OneVariableOptions& options);
