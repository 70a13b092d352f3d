// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/tables/GenericLayout.h"

#include "results/tables/FieldColumns.h"

#include "TKelDataset.h"
#include "TKelOutput.h"

#include <algorithm>

namespace {

/// The categories' texts come first; a single row may begin with what it is about.
std::size_t textFields(const TKelOutput& output) {
    if (output.dimension() > 0)
        return static_cast<std::size_t>(output.dimension());
    const eTableMethod method = output.method();
    return method == eTableMethod::NONE || method == eTableMethod::AVERAGE ? 1 : 0;
}

} // namespace

TableLayout genericLayout(TKelOutput& output) {
    TKelDataset* const data = output.dataset();
    if (data == nullptr)
        return {};
    FieldColumns columns = columnsOf(*data);
    for (FieldColumn& column : columns)
        column.heading = column.label.isEmpty() ? column.name : column.label;
    const std::size_t texts = std::min(textFields(output), columns.size());
    for (std::size_t i = 0; i < texts; ++i)
        columns[i].isText = true;
    return laidOut(*data, columns, groupHeader(columns));
}
