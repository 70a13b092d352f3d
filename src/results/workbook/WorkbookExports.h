// SPDX-License-Identifier: GPL-3.0-or-later
// Result tables as sheets of a workbook.
#pragma once

#include "results/workbook/WriteOutcome.h"

#include <QList>
#include <QString>

class TableBase;

/// The grids, one sheet for each table. The path is taken as it stands; a file there is replaced.
WriteOutcome writePlainWorkbook(const QList<const TableBase*>& tables, const QString& path,
                                const WriteProgress& progress = {});

/// The reports with their facts. ".xlsx" is added where it lacks. Without overwrite the sheets join
/// the workbook that is there, which keeps all that it holds.
WriteOutcome writeReportWorkbook(const QList<const TableBase*>& tables, const QString& path,
                                 bool overwrite, const WriteProgress& progress = {});
