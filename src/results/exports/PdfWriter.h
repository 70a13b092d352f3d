// SPDX-License-Identifier: GPL-3.0-or-later
// The report of a result table as a PDF for sheets of A4.
#pragma once

#include "results/workbook/WriteOutcome.h"

#include <QString>

class TableBase;

/// ".pdf" is added where the path lacks it. A table too wide for a sheet is laid across, then in a
/// smaller font. Needs the GUI application, on any thread that may paint.
WriteOutcome writePdfReport(const TableBase& table, const QString& path,
                            const WriteProgress& progress = {});
