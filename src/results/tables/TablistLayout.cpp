// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/tables/TablistLayout.h"

#include "results/tables/FieldColumns.h"

#include "TKelDataset.h"
#include "TKelOutput.h"

#include <algorithm>

TableLayout tablistLayout(TKelOutput& output) {
    TKelDataset* const data = output.dataset();
    if (data == nullptr)
        return {};
    FieldColumns columns = columnsOf(*data);
    HeaderRows header;
    header.startRow();
    for (std::size_t i = 0; i < columns.size(); ++i) {
        columns[i].isText = i < output.variables().size();
        header.add(columns[i].heading, static_cast<int>(i));
    }
    return laidOut(*data, columns, std::move(header));
}
