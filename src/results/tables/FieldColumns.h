// SPDX-License-Identifier: GPL-3.0-or-later
// Fields of a dataset as the columns of a table, with the groups that they stand in.
#pragma once

#include "results/tables/TableLayout.h"

#include <vector>

class TKelDataset;

struct FieldColumn {
    int field = 0; ///< its number in the dataset
    QString heading;
    QString name;
    QString label;
    QString group;
    QString marker; ///< "Total", "MV", "NA"; empty for most
    bool isText = false;
};

using FieldColumns = std::vector<FieldColumn>;

/// In the dataset's order, under their display names.
FieldColumns columnsOf(TKelDataset& data);
/// Lengths of the runs of fields with equal groups, from a field on.
QList<int> groupSizes(TKelDataset& data, int first);
/// One row of headings; where neighbours are of one group, the groups' names above them.
HeaderRows groupHeader(const FieldColumns& columns);
/// Headers and rows, all records.
TableLayout laidOut(TKelDataset& data, const FieldColumns& columns, HeaderRows header);
