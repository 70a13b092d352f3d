// SPDX-License-Identifier: GPL-3.0-or-later
// The report of a result table as XML, in the form that readers of these files know.
#pragma once

#include "results/workbook/WriteOutcome.h"

#include <QString>

class TableBase;

/// No value is escaped, and the tags of a universal filter do not match. The path is taken as it
/// stands.
WriteOutcome writeXmlReport(const TableBase& table, const QString& path,
                            const WriteProgress& progress = {});
