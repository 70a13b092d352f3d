// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/tables/FieldColumns.h"

#include "results/tables/VariableHeading.h"

#include "TKelDataset.h"

#include <memory>

namespace {

/// One behind the last column of the group that begins there.
std::size_t groupEnd(const FieldColumns& columns, std::size_t begin) {
    std::size_t end = begin + 1;
    while (end < columns.size() && columns[end].group == columns[begin].group)
        ++end;
    return end;
}

CellTexts readRecords(TKelDataset& data, const FieldColumns& columns) {
    CellTexts cells;
    const std::int64_t records = data.recCount();
    cells.reserve(records, records * static_cast<qsizetype>(columns.size()));
    for (std::int64_t record = 0; record < records; ++record) {
        cells.startRow();
        for (const FieldColumn& column : columns)
            cells.add(data.stringValue(record, column.field));
    }
    return cells;
}

} // namespace

FieldColumns columnsOf(TKelDataset& data) {
    FieldColumns columns;
    for (int i = 0; i < data.numFields(); ++i) {
        const std::shared_ptr<TKelField> field = data.field(i);
        columns.push_back({i, fieldDisplayName(*field), QString::fromStdString(field->name()),
                           QString::fromStdString(field->label()),
                           QString::fromStdString(field->format()), fieldMarker(*field), false});
    }
    return columns;
}

QList<int> groupSizes(TKelDataset& data, int first) {
    const FieldColumns columns = columnsOf(data);
    QList<int> sizes;
    for (auto begin = static_cast<std::size_t>(first); begin < columns.size();) {
        const std::size_t end = groupEnd(columns, begin);
        sizes += static_cast<int>(end - begin);
        begin = end;
    }
    return sizes;
}

HeaderRows groupHeader(const FieldColumns& columns) {
    HeaderRows header;
    header.startRow();
    for (std::size_t begin = 0; begin < columns.size();) {
        const std::size_t end = groupEnd(columns, begin);
        header.add(columns[begin].group, static_cast<int>(begin), static_cast<int>(end - begin));
        begin = end;
    }
    const bool anyJoined = header.texts.first().size() < static_cast<qsizetype>(columns.size());
    if (!anyJoined)
        header = {};
    header.startRow();
    for (std::size_t i = 0; i < columns.size(); ++i)
        header.add(columns[i].heading, static_cast<int>(i));
    return header;
}

TableLayout laidOut(TKelDataset& data, const FieldColumns& columns, HeaderRows header) {
    TableLayout layout;
    layout.header = std::move(header);
    for (const FieldColumn& column : columns) {
        layout.columnHeaders += column.heading;
        layout.columnNames += column.name;
        layout.columnLabels += column.label;
        layout.textColumns.push_back(column.isText);
    }
    layout.cells = readRecords(data, columns);
    return layout;
}
