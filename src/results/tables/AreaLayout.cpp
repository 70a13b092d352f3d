// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/tables/AreaLayout.h"

#include "results/tables/FieldColumns.h"
#include "results/tables/TotalsRow.h"
#include "results/tables/VariableHeading.h"

#include "TKelDataset.h"
#include "TKelOutput.h"
#include "TKelVariable.h"

#include <algorithm>
#include <set>

namespace {

QString orderKey(const FieldColumn& column) {
    if (column.marker == QLatin1String("Total"))
        return columnkeys::total;
    if (column.marker == QLatin1String("MV"))
        return columnkeys::missing;
    return column.marker == QLatin1String("NA") ? columnkeys::notApplicable : columnkeys::variables;
}

bool isHidden(const FieldColumn& column, const TableViewConfig& options) {
    const QString key = orderKey(column);
    return (options.hideTotal && key == columnkeys::total) ||
           (options.hideMv && key == columnkeys::missing) ||
           (options.hideNa && key == columnkeys::notApplicable);
}

/// Paths of variables whose values are texts.
std::set<QString> textVariables(TKelOutput& output) {
    std::set<QString> paths;
    for (const TKelVariable* variable : output.variables())
        if (variable->type() == eVarType::STRING)
            paths.insert(variablePath(*variable));
    return paths;
}

/// Columns of tables over such a variable have other names: they are figures.
void markTexts(FieldColumns& columns, TKelOutput& output) {
    const std::set<QString> paths = textVariables(output);
    for (FieldColumn& column : columns)
        column.isText = column.field == 0 || paths.contains(column.name);
}

/// A key that the order lacks comes behind the others: nothing is lost by it.
void orderWithinGroups(FieldColumns& columns, const QStringList& order) {
    const auto rank = [&](const FieldColumn& column) {
        const qsizetype place = order.indexOf(orderKey(column));
        return place < 0 ? order.size() : place;
    };
    for (auto begin = columns.begin() + 1; begin < columns.end();) {
        const auto end = std::find_if(begin, columns.end(), [&](const FieldColumn& column) {
            return column.group != begin->group;
        });
        std::stable_sort(begin, end, [&](const FieldColumn& a, const FieldColumn& b) {
            return rank(a) < rank(b);
        });
        begin = end;
    }
}

} // namespace

TableLayout areaLayout(TKelOutput& output, const TableViewConfig& options) {
    TKelDataset* const data = output.dataset();
    if (data == nullptr || data->numFields() == 0)
        return {};
    FieldColumns columns = columnsOf(*data);
    markTexts(columns, output);
    std::erase_if(columns, [&](const FieldColumn& column) {
        return column.field > 0 && isHidden(column, options);
    });
    orderWithinGroups(columns, options.columnOrder);
    TableLayout layout = laidOut(*data, columns, groupHeader(columns));
    if (options.showTotalsRow)
        addTotalsRow(layout.cells, layout.textColumns);
    return layout;
}
